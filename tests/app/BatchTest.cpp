#include "app/Batch.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "app/Remembered.h"
#include "tests/app/AppTest.h"

// What is made of several files that are dropped on the window.
namespace korvande::testing {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

class BatchTest : public AppTest {
 protected:
    // The names of inputs and outputs, without their folders.
    static std::vector<std::string> Pairs(const Batch& batch) {
        std::vector<std::string> pairs;
        for (const BatchFile& file : batch.files) {
            pairs.push_back(ToUtf8(Concat(FileNameOf(file.input), u" > ", FileNameOf(file.output))));
        }
        return pairs;
    }

    std::string Obstacle(const Batch& batch) const { return ToUtf8(ObstacleTo(form, batch)); }
    Text MakeFolder(const std::string& name) const {
        std::filesystem::create_directory(folder.Path() + "/" + name);
        return folder / name;
    }
};

TEST_F(BatchTest, OneFileIsNoneAndTwoFilesOrAFolderAre) {
    const Text file = folder.Write("a.idx", Drawing());
    EXPECT_FALSE(AreBatch({file}));
    EXPECT_TRUE(AreBatch({file, file}));
    EXPECT_TRUE(AreBatch({FromUtf8(folder.Path())}));
    EXPECT_FALSE(AreBatch({folder / "weg.idx"}));
    EXPECT_FALSE(AreBatch({}));
}

TEST_F(BatchTest, EachFileIsTranslatedByWhatItHolds) {
    std::string suf2 = Nen1878();
    suf2[66 + 6] = '0';
    const Batch batch = BatchOf(form, {folder.Write("a.idx", Drawing()), folder.Write("b.txt", Nen1878()),
                                       folder.Write("c.sfn", suf2), folder.Write("d.idx", "geen tekening")});
    EXPECT_THAT(Pairs(batch), ElementsAre("a.idx > a.SFN", "b.txt > b.IDX", "c.sfn > c.IDX", "d.idx > "));
    EXPECT_EQ(batch.files[1].format, Format::Nen1878);
    EXPECT_EQ(ModeFor(batch, batch.files[2]), (Mode{Direction::ToIdex, Variant::Suf2}));
    EXPECT_FALSE(batch.files[3].format);
    EXPECT_EQ(batch.files[0].logBook, folder / "a.LOG");
}

TEST_F(BatchTest, TheTargetOfIdexFilesCanBeChosen) {
    Batch batch = BatchOf(form, {folder.Write("a.idx", Drawing()), folder.Write("b.sfn", Nen1878())});
    EXPECT_TRUE(HasIdex(batch));
    EXPECT_EQ(batch.variant, Variant::Nen1878);
    ChooseVariant(batch, Variant::Suf2);
    EXPECT_THAT(Pairs(batch), ElementsAre("a.idx > a.SF2", "b.sfn > b.IDX"));
    EXPECT_EQ(ModeFor(batch, batch.files[0]), (Mode{Direction::FromIdex, Variant::Suf2}));
    DropFile(batch, 0);
    EXPECT_THAT(Pairs(batch), ElementsAre("b.sfn > b.IDX"));
    EXPECT_FALSE(HasIdex(batch));
}

TEST_F(BatchTest, TheSelectedModeTellsTheTargetToBeginWith) {
    form.cboXlateMode.index = 1;
    EXPECT_EQ(BatchOf(form, {folder.Write("a.idx", Drawing())}).variant, Variant::Suf2);
}

TEST_F(BatchTest, OfAFolderTheDrawingsAreTakenAndTheOthersCounted) {
    MakeFolder("werk");
    MakeFolder("werk/dieper");
    folder.Write("werk/b.idx", Drawing());
    folder.Write("werk/a.sfn", Nen1878());
    folder.Write("werk/a.log", "logboek");
    folder.Write("werk/dieper/c.idx", Drawing());
    const Batch batch = BatchOf(form, {folder / "werk"});
    EXPECT_THAT(Pairs(batch), ElementsAre("a.sfn > a.IDX", "b.idx > b.SFN"));
    EXPECT_EQ(batch.passedOver, 1U);
}

TEST_F(BatchTest, AFileThatIsGivenTwiceIsTranslatedOnce) {
    const Text file = folder.Write("a.idx", Drawing());
    EXPECT_EQ(BatchOf(form, {file, folder / "./a.idx", FromUtf8(folder.Path())}).files.size(), 1U);
}

TEST_F(BatchTest, TheResultsGoBesideTheFirstFileOrIntoTheFolderOfTheLastTime) {
    const Text file = folder.Write("a.idx", Drawing());
    Batch batch = BatchOf(form, {file});
    EXPECT_EQ(batch.folder, FolderOf(file));
    ChooseFolder(batch, MakeFolder("uit"));
    EXPECT_EQ(batch.files[0].output, folder / "uit/a.SFN");
    RememberFolder(batch);
    EXPECT_EQ(BatchOf(form, {file}).files[0].output, folder / "uit/a.SFN");
    std::filesystem::remove(folder.Path() + "/uit");
    EXPECT_EQ(BatchOf(form, {file}).folder, FolderOf(file));
}

TEST_F(BatchTest, NothingIsInTheWayOfFilesOfDifferentNames) {
    const Batch batch = BatchOf(form, {folder.Write("a.idx", Drawing()), folder.Write("b.idx", Drawing())});
    EXPECT_EQ(Obstacle(batch), "");
}

TEST_F(BatchTest, TwoInputsWithTheSameOutputAreToldWithTheirNames) {
    MakeFolder("een");
    MakeFolder("twee");
    const Text one = folder.Write("een/a.idx", Drawing());
    const Text two = folder.Write("twee/A.idx", Drawing());
    Batch batch = BatchOf(form, {one, two});
    EXPECT_EQ(Obstacle(batch), "Twee bestanden zouden dezelfde uitvoer krijgen:\n" + ToUtf8(folder / "een/A.SFN") +
                                   "\n\nHet zijn:\n" + ToUtf8(one) + "\n" + ToUtf8(two) +
                                   "\n\nHaal er een uit de lijst, en vertaal dat bestand in een andere map.");
    DropFile(batch, 1);
    EXPECT_EQ(Obstacle(batch), "");
}

TEST_F(BatchTest, TwoInputsWithTheSameLogBookAreToldToo) {
    MakeFolder("uit");
    Batch batch = BatchOf(form, {folder.Write("a.idx", Drawing()), folder.Write("a.nen", Nen1878())});
    ChooseFolder(batch, folder / "uit");
    EXPECT_THAT(Obstacle(batch), StartsWith("Twee bestanden zouden hetzelfde logboek krijgen:\n"));
}

TEST_F(BatchTest, AnInputThatIsAlsoAnOutputIsRefused) {
    const Text idex = folder.Write("a.IDX", Drawing());
    const Text sufNen = folder.Write("a.SFN", Nen1878());
    EXPECT_THAT(Obstacle(BatchOf(form, {idex, sufNen})),
                StartsWith("Invoer en uitvoer zijn hetzelfde bestand:\n" + ToUtf8(sufNen)));
}

TEST_F(BatchTest, AnInputThatIsALogBookIsRefused) {
    const Text log = folder.Write("a.LOG", Drawing());
    EXPECT_THAT(Obstacle(BatchOf(form, {log})), StartsWith("Invoer en logboek zijn hetzelfde bestand:\n"));
}

TEST_F(BatchTest, TheControlTableIsNotWrittenOver) {
    form.CurrentProject = u"a.LOG";
    WriteProject("a.LOG");
    Batch batch = BatchOf(form, {folder.Write("a.idx", Drawing())});
    ChooseFolder(batch, FromUtf8(projects));
    EXPECT_THAT(Obstacle(batch), StartsWith("Controletabel en logboek zijn hetzelfde bestand:\n"));
}

TEST_F(BatchTest, AFolderThatIsNotThereIsTold) {
    Batch batch = BatchOf(form, {folder.Write("a.idx", Drawing())});
    ChooseFolder(batch, folder / "weg");
    EXPECT_THAT(Obstacle(batch), StartsWith("De map voor de resultaten bestaat niet:\n"));
    ChooseFolder(batch, u"");
    EXPECT_THAT(Obstacle(batch), StartsWith("De map voor de resultaten bestaat niet:\n"));
}

TEST_F(BatchTest, FilesWithoutAnyDrawingAreTold) {
    EXPECT_EQ(Obstacle(BatchOf(form, {folder.Write("a.txt", "x"), folder.Write("b.txt", "y")})),
              "Geen van deze bestanden is een IDEX-, NEN1878- of SUF2-bestand.");
}

}  // namespace

}  // namespace korvande::testing
