#include "tests/idex/IdexTest.h"

namespace korvande::testing {

namespace {

constexpr std::string_view layers = "LAYERS (LayerNo,Name)\n0,\"STNDRD\";\nEND LAYERS\n";
constexpr std::string_view onePoint = "POINTS (PointNo,East,North,Code)\n1,5,6,\"A\";\nEND POINTS\n";

class IdexFileProblems : public IdexTest {
 protected:
    // Reads a file with these lines in its header, the first of which is line 2.
    std::string ReadHeader(std::string_view lines) {
        return Read("HEADER\n" + std::string(lines) + "END HEADER\n" + std::string(layers) +
                    "DATABASE\nEND DATABASE\n");
    }

    // The lines of a file whose database, on line 3, has these lines and no layers before it.
    static std::string WithoutLayers(std::string_view database) {
        return "HEADER\nEND HEADER\nDATABASE\n" + std::string(database) + "END DATABASE\n";
    }
};

TEST_F(IdexFileProblems, UnitsOtherThanMetresAndGradsAreTold) {
    ASSERT_EQ(ReadHeader("UNITS\nANGULAR  dms\n LINEAR\tFeet \nEND UNITS\n"), "");
    EXPECT_EQ(Lost(),
              (Told{"eenheid DMS is niet omgerekend (op regel 3)", "eenheid FEET is niet omgerekend (op regel 4)"}));
    EXPECT_FALSE(HasDamage());
}

TEST_F(IdexFileProblems, MetresAndGradsAreNotToldByAnyOfTheirNames) {
    for (const std::string_view unit : {"GRADS", "grad", "GRADIAN", "GRADIANS", "GON", "GONS", ""}) {
        ASSERT_EQ(ReadHeader("ANGULAR " + std::string(unit) + "\n"), "");
    }
    for (const std::string_view unit : {"METRE", "METRES", "meter", "METERS", "M", ""}) {
        ASSERT_EQ(ReadHeader("LINEAR " + std::string(unit) + "\n"), "");
    }
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexFileProblems, AFileWithoutLayersIsReadWhenItIsOfAnInstrument) {
    translation.readsWithoutLayers = true;
    ASSERT_EQ(Read(WithoutLayers(onePoint)), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(drawing.LayerNames, std::vector<Text>(1));
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexFileProblems, AFileWithLayersIsReadAsEverThoughItIsOfAnInstrument) {
    translation.readsWithoutLayers = true;
    ASSERT_EQ(ReadTables(onePoint), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(drawing.LayerNames.size(), 2U);
}

TEST_F(IdexFileProblems, APersonMayHaveAFileWithoutLayersRead) {
    screen.answers = {Answer::Yes};
    ASSERT_EQ(Read(WithoutLayers(onePoint)), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.boxes[0].buttons, Buttons::YesNo);
    EXPECT_EQ(screen.boxes[0].icon, Icon::Question);
    EXPECT_EQ(screen.messages[0],
              "Het bestand heeft geen LAYERS voor DATABASE, zoals bestanden van een instrument.\nToch inlezen?");
}

TEST_F(IdexFileProblems, AnyOtherAnswerKeepsTheFateOfAFileWithoutLayers) {
    for (const Answer answer : {Answer::No, Answer::Cancel, Answer::Ok}) {
        screen.answers = {answer};
        screen.boxes.clear();
        translation.problems = {};
        ASSERT_EQ(Read(WithoutLayers(std::string(onePoint) + "DATABASE again\n")), "");
        EXPECT_EQ(drawing.Points.UpperBound(), 0);
        EXPECT_EQ(screen.boxes.size(), 1U);
        EXPECT_EQ(translation.problems.errors, 1);
        EXPECT_TRUE(Lost().empty());
    }
}

TEST_F(IdexFileProblems, AFileWithLayersIsNotAskedAbout) {
    ASSERT_EQ(ReadTables(onePoint), "");
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexFileProblems, LayersBehindTheDatabaseAreTold) {
    ASSERT_EQ(Read(WithoutLayers(std::string(layers).append(onePoint))), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 0);
    EXPECT_EQ(drawing.LayerNames.size(), 1U);
    EXPECT_EQ(Lost(), Told{"LAYERS staat achter DATABASE; de tekening is niet gelezen (op regel 4)"});
    EXPECT_TRUE(HasDamage());
    EXPECT_EQ(translation.problems.errors, 0);
}

TEST_F(IdexFileProblems, LayersBehindADatabaseWithoutAnEndAreTold) {
    ASSERT_EQ(Read("HEADER\nEND HEADER\nDATABASE\n" + std::string(layers) + std::string(onePoint)), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 0);
    EXPECT_EQ(Lost(), Told{"LAYERS staat achter DATABASE; de tekening is niet gelezen (op regel 4)"});
    EXPECT_EQ(translation.problems.errors, 1);
}

TEST_F(IdexFileProblems, LayersBehindAFirstDatabaseAreNotToldWhenAnotherOneFollows) {
    ASSERT_EQ(Read("HEADER\nEND HEADER\nDATABASE version 2\n" + std::string(layers) + "DATABASE\n" +
                   std::string(onePoint) + "END DATABASE\n"),
              "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexFileProblems, LayersBehindTheDatabaseAreABlockWhenTheFileIsReadWithoutThem) {
    translation.readsWithoutLayers = true;
    ASSERT_EQ(Read(WithoutLayers(std::string(layers).append(onePoint))), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"1 regel van blok LAYERS overgeslagen (op regel 4)"});
}

TEST_F(IdexFileProblems, ADatabaseThatOnlyEndsIsTold) {
    ASSERT_EQ(Read("HEADER\nEND HEADER\n" + std::string(layers) + std::string(onePoint) + "END DATABASE\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 0);
    EXPECT_EQ(Lost(), Told{"het bestand is afgebroken: DATABASE ontbreekt (op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexFileProblems, AFileThatEndsBetweenTablesIsCutOff) {
    ASSERT_EQ(Read("HEADER\nEND HEADER\n" + std::string(layers) + "DATABASE\n" + std::string(onePoint)), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"het bestand is afgebroken: END DATABASE ontbreekt (op regel 9)"});
    EXPECT_TRUE(HasDamage());
}

TEST_F(IdexFileProblems, AFileThatEndsInsideATableIsCutOffAndToldOnce) {
    EXPECT_EQ(Read("HEADER\nEND HEADER\n" + std::string(layers) + "DATABASE\nLINES (LineNo,Code)\n1,\"A\";\n"),
              "error 62 in line 8");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_EQ(Lost(), Told{"het bestand is afgebroken: END DATABASE ontbreekt (op regel 8)"});
}

TEST_F(IdexFileProblems, ATableThatTheDatabaseEndsIsNotCutOff) {
    ASSERT_EQ(ReadTables("LINES (LineNo,Code)\n1,\"A\";\n"), "");
    EXPECT_EQ(drawing.Lines.UpperBound(), 1);
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexFileProblems, WhatStandsBehindALineEOFIsToldAsNotRead) {
    ASSERT_EQ(ReadTables("EOF\n\nPOINTS (PointNo)\n1;\nEND POINTS\n"), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 0);
    EXPECT_EQ(Lost(), Told{"de rest van het bestand is niet gelezen, vanaf regel 10"});
}

TEST_F(IdexFileProblems, ALineEOFAtTheEndIsNotTold) {
    ASSERT_EQ(Read(FileWith(onePoint) + "EOF\n"), "");
    EXPECT_TRUE(Lost().empty());
    ASSERT_EQ(ReadTables("EOF\n"), "");
    EXPECT_TRUE(Lost().empty());
}

TEST_F(IdexFileProblems, TablesBehindTheEndOfTheDatabaseAreRead) {
    ASSERT_EQ(Read(FileWith("") + std::string(onePoint)), "");
    EXPECT_EQ(drawing.Points.UpperBound(), 1);
    EXPECT_TRUE(Lost().empty());
}

}  // namespace

}  // namespace korvande::testing
