#include "app/GridCsv.h"

#include "tests/app/GridEditingTest.h"

// A code table goes through a CSV file and comes back whole, or a message says on which line it would not.
namespace korvande::testing {

namespace {

class GridCsvTest : public GridEditing {
 protected:
    CsvRows Read(std::string_view bytes) const { return ReadGridCsv(edited, bytes); }
    std::string Write(const CsvForm& csvForm) const {
        std::vector<Text> errors;
        std::string bytes = CsvOfGrid(edited, csvForm, errors);
        EXPECT_TRUE(errors.empty());
        return bytes;
    }

    // The cells of the rows, "|" between them, and the errors.
    static std::string Told(const CsvRows& read) {
        std::string told;
        for (const Grid::Row& row : read.rows) {
            for (const Text& cell : row) told += ToUtf8(cell) + "|";
            told += "\n";
        }
        for (const Text& error : read.errors) told += ToUtf8(error) + "\n";
        return told;
    }
    std::string ToldOf(std::string_view bytes) const { return Told(Read(bytes)); }

    EditedGrid& edited = form.editedPoints;
};

TEST_F(GridCsvTest, ItIsWrittenWithAHeaderAndInTheChosenForm) {
    edited.grid[1][Grid::Description] = u"CAF\u00C9; \"BAR\"";
    EXPECT_EQ(Write({u';', true}),
              "\xEF\xBB\xBFLiscad;LKI;Type;Omschrijving;P;I;B\r\nSTANDRD;Q20;PUNT;\"CAFÉ; \"\"BAR\"\"\";0;0;0\r\n");
    EXPECT_EQ(Write({u',', false}),
              "Liscad,LKI,Type,Omschrijving,P,I,B\r\nSTANDRD,Q20,PUNT,\"CAF\xC9; \"\"BAR\"\"\",0,0,0\r\n");
}

TEST_F(GridCsvTest, EveryFormComesBackAsItWas) {
    AddRows(edited, {u"BOOM", u""});
    edited.grid[2][Grid::Description] = u"CAF\u00C9 \"DE\u20AC\" ; 5\"";
    edited.grid[3][Grid::Lki] = u"S01 A01";
    for (const CsvForm& csvForm :
         {CsvForm{u';', true}, CsvForm{u';', false}, CsvForm{u',', true}, CsvForm{u',', false}}) {
        const CsvRows read = Read(Write(csvForm));
        EXPECT_EQ(Told({{}, 0, read.errors}), "");
        ASSERT_EQ(read.rows.size(), 3U);
        for (int row = 1; row < 4; ++row) EXPECT_EQ(read.rows[static_cast<std::size_t>(row - 1)], edited.grid[row]);
    }
}

TEST_F(GridCsvTest, ACharacterThatWindows1252LacksIsRefusedWithItsRow) {
    edited.grid[1][Grid::P] = u"\u2603";
    std::vector<Text> errors;
    EXPECT_EQ(CsvOfGrid(edited, {u';', false}, errors), "");
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(ToUtf8(errors[0]), "Regel 1: er is een teken dat Windows-1252 niet heeft.");
}

TEST_F(GridCsvTest, SeparatorLineEndsAndEncodingAreRecognised) {
    const std::string row = "BOOM|Q21|PUNT|LINDE|1|2|3|\n";
    EXPECT_EQ(ToldOf("BOOM;Q21;PUNT;LINDE;1;2;3"), row);
    EXPECT_EQ(ToldOf("BOOM,Q21,PUNT,LINDE,1,2,3\r\n"), row);
    EXPECT_EQ(ToldOf("BOOM\tQ21\tPUNT\tLINDE\t1\t2\t3\n"), row);
    EXPECT_EQ(ToldOf("\xEF\xBB\xBF"
                     "BOOM;Q21;punt ; LINDE;1;2;3\r"),
              row);
    EXPECT_EQ(ToldOf("A;Q21;PUNT;CAF\xC9;1;2;3"), "A|Q21|PUNT|CAFÉ|1|2|3|\n");
    EXPECT_EQ(ToldOf("A;Q21;PUNT;CAFÉ;1;2;3"), "A|Q21|PUNT|CAFÉ|1|2|3|\n");
}

TEST_F(GridCsvTest, WithAHeaderTheColumnsStandInAnyOrderAndMayBeMissing) {
    EXPECT_EQ(ToldOf("lki;Omschrijving;LISCAD\nQ21;LINDE;BOOM\n"), "BOOM|Q21||LINDE||||\n");
    EXPECT_EQ(ToldOf("Liscad,LKI,Omschrijving\nBOOM,Q21,\"LINDE; of EIK\"\n"), "BOOM|Q21||LINDE; of EIK||||\n");
}

TEST_F(GridCsvTest, ColumnsThatTheTableDoesNotHaveAreRefused) {
    EXPECT_EQ(ToldOf("Liscad;LKI;Laag\nA;B;C\n"),
              "A|B||||||\nRegel 1: de kolom 'Laag' hoort niet in deze tabel.\nRegel 2: 'C' staat in een kolom zonder "
              "naam.\n");
    EXPECT_EQ(ToldOf("Liscad;LKI;LKI\n"), "Regel 1: de kolom LKI staat er meer dan een keer.\n");
    EXPECT_EQ(ToldOf("Liscad;LKI;\nA;B;\n"), "A|B||||||\n");
}

TEST_F(GridCsvTest, QuotedFieldsHoldSeparatorsAndQuotes) {
    EXPECT_EQ(ToldOf("A;B;PUNT;\"EEN; \"\"TWEE\"\"\";1;2;3\n"), "A|B|PUNT|EEN; \"TWEE\"|1|2|3|\n");
    EXPECT_EQ(ToldOf("Liscad;LKI\nA;\"B\n\n"), "Regel 2: een veld begint met een aanhalingsteken dat niet sluit.\n");
    EXPECT_EQ(ToldOf("Liscad;LKI\nA;\"B\"C\n"), "Regel 2: achter een aanhalingsteken dat sluit, staat nog tekst.\n");
}

TEST_F(GridCsvTest, ErrorsHaveTheLineOfTheFile) {
    EXPECT_EQ(ToldOf("Liscad;LKI;P\n\nA;B;1\nLANTAARNPAAL;\"C\";x\nA;B\n"),
              "A|B|||1|||\nLANTAARNPAAL|C|||x|||\n"
              "Regel 4: kolom Liscad: 'LANTAARNPAAL' heeft 12 tekens; er passen er 7.\n"
              "Regel 4: kolom P: 'x' is geen geheel getal van -32768 tot en met 32767.\n"
              "Regel 5: 2 velden in plaats van 3.\n");
    EXPECT_EQ(ToldOf("Liscad;LKI\n\"A\n\";B\nC;D#\n").substr(0, 6), "A\n|B||");
    EXPECT_NE(ToldOf("Liscad;LKI\n\"A\n\";B\nC;D#\n").find("Regel 4: kolom LKI"), std::string::npos);
    EXPECT_EQ(ToldOf("A;B;PUNT;C;1;2;3;over\n"), "Regel 1: 8 velden in plaats van 7.\n");
}

TEST_F(GridCsvTest, WhatWindows1252LacksIsRefused) {
    EXPECT_EQ(
        ToldOf("Liscad;LKI\nA;\u2603\n"),
        "A|\u2603||||||\nRegel 2: kolom LKI: De tekst heeft een teken dat niet in een controletabel kan staan.\n");
}

TEST_F(GridCsvTest, EmptyRowsAreLeftOutAndCounted) {
    const CsvRows read = Read("Liscad;LKI\n;\nA;B\n ; \n\n");
    EXPECT_EQ(Told(read), "A|B||||||\n");
    EXPECT_EQ(read.emptyRows, 2);
}

TEST_F(GridCsvTest, AFileThatIsNoTableSaysSo) {
    EXPECT_EQ(ToldOf("Dit is een brief.\nMet twee regels.\n"),
              "Regel 1: er is geen puntkomma, komma of tab. Dit is geen CSV-bestand van een codetabel.\n");
    EXPECT_EQ(ToldOf(std::string("PK\3\4\nA;\0B", 9)), "Regel 2: hier staat een teken dat in tekst niet voorkomt.\n");
    EXPECT_EQ(ToldOf("\xFF\xFE"
                     "A"),
              "Regel 1: het bestand is UTF-16. Bewaar het als CSV in UTF-8 of Windows-1252.\n");
    EXPECT_EQ(ToldOf("\xEF\xBB\xBF"
                     "A;B\nC;\xC9\n"),
              "Regel 2: hier staat een teken dat geen UTF-8 is.\n");
    EXPECT_EQ(ToldOf(""), "");
}

TEST_F(GridCsvTest, TextsHaveNoColumnForTypes) {
    EditedGrid& texts = form.editedTexts;
    std::vector<Text> errors;
    EXPECT_EQ(CsvOfGrid(texts, {u';', false}, errors),
              "Liscad;LKI;Omschrijving;P;I;B\r\nSTANDRD;Z19;ONBEKEND TEKSTOBJECT;0;0;0\r\n");
    EXPECT_EQ(Told(ReadGridCsv(texts, "NAAM;Z04;GEBOUW;1;2;3\n")), "NAAM|Z04||GEBOUW|1|2|3|\n");
    EXPECT_EQ(Told(ReadGridCsv(texts, "Liscad;LKI;Type\nNAAM;Z04;PUNT\n")),
              "NAAM|Z04|PUNT|||||\nRegel 2: kolom Type: Tekstobjecten hebben geen type.\n");
}

}  // namespace

}  // namespace korvande::testing
