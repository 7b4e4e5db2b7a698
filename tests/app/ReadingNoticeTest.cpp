#include "app/ReadingNotice.h"

#include <gmock/gmock.h>

#include "tests/app/PreviewTest.h"

// What a person is told of a drawing that was read to be looked at.
namespace korvande::testing {

namespace {

using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::StartsWith;

class ReadingNoticeTest : public PreviewTest {
 protected:
    std::string NoticeOf(int mode, const Text& name) {
        Choose(mode, mode == 0 ? name : Text(), mode == 0 ? Text() : name);
        return ToUtf8(Read(*PreviewOfInput(form))->drawing.notice);
    }
};

TEST_F(ReadingNoticeTest, OfASoundDrawingThereIsNothingToTell) { EXPECT_EQ(NoticeOf(0, Street()), ""); }

TEST_F(ReadingNoticeTest, AFileThatBreaksOffSaysWhereWithWhatWasRead) {
    const std::string whole = FileBytes(Street());
    const Text cut = folder.Write("deel.idx", whole.substr(0, whole.find("END POINTS")));
    EXPECT_THAT(NoticeOf(0, cut), AllOf(StartsWith("Niet alles van deel.idx is gelezen: "), EndsWith("(regel 11)")));
    EXPECT_EQ(form.activity.isRunning, false);
}

TEST_F(ReadingNoticeTest, DamageIsToldByItsFirstLine) {
    EXPECT_EQ(NoticeOf(0, Street("5,\"P5\",x,10,1.5,\"MV\",\"\",0;\n")),
              "straat.idx is beschadigd: 1 coördinaat die geen getal is (op regel 12)");
}

TEST_F(ReadingNoticeTest, ADrawingWithoutObjectsSaysSo) {
    const Text empty = folder.Write("leeg.idx", WithCrLf("HEADER\nEND HEADER\nLAYERS (LayerNo,Name)\n0,\"A\";\n"
                                                         "END LAYERS\nDATABASE\nEND DATABASE\n"));
    EXPECT_EQ(NoticeOf(0, empty), "leeg.idx bevat geen objecten");
}

TEST_F(ReadingNoticeTest, AQuestionThatWasAnsweredIsTold) {
    // A file of the one format that looks like the other's.
    EXPECT_THAT(NoticeOf(3, folder.Write("in.sfn", Nen1878())), EndsWith(" (hier getoond met Ja)"));
}

TEST_F(ReadingNoticeTest, MoreErrorsAreCounted) {
    ReadingNotice notice;
    Translation translation(screen);
    notice.Listen(translation);
    DisplayList list;
    list.points.emplace_back();
    for (int i = 0; i < 3; ++i) translation.problems.onError({.kind = ProblemKind::NoTextRecord, .line = 7 + i});
    EXPECT_EQ(ToUtf8(notice.Lines(u"x.sfn", translation, list)),
              "Niet alles van x.sfn is gelezen: Tekst, 06 record ontbreekt (regel 7), en nog 2 fouten");
}

}  // namespace

}  // namespace korvande::testing
