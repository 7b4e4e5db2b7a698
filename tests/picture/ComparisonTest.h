#pragma once

#include <memory>
#include <string>

#include "picture/Comparison.h"
#include "tests/picture/PictureTest.h"

namespace korvande::testing {

// What a difference is in these tests: "changed point BOOM 1.000 2.000: richting 0.0 > 50.0 [reason]", with a line end.
std::string Told(const Difference& difference);

// The same without its place and what was changed: "changed point".
std::string KindTold(const Difference& difference);

class Comparisons : public PictureTest {
 protected:
    // Reads a drawing of one of the formats into a translation that stays.
    std::unique_ptr<Translation> Read(Mode mode, const std::string& bytes) {
        auto translation = std::make_unique<Translation>(screen, project);
        translation->mode = mode;
        translation->inputBytes = bytes;
        ReadDrawing(*translation);
        EXPECT_FALSE(translation->outcome.Failed());
        translation->inputBytes.reset();
        return translation;
    }

    Comparison Compared(Mode mode1, const std::string& bytes1, Mode mode2, const std::string& bytes2) {
        const auto first = Read(mode1, bytes1);
        const auto second = Read(mode2, bytes2);
        return Compare(*first, *second);
    }

    std::string Differences(const Rows& first, const Rows& second) {
        return AllTold(Compared(idexToNen, Idex(first), idexToNen, Idex(second)));
    }

    static std::string AllTold(const Comparison& comparison) {
        std::string all;
        for (const Difference& difference : comparison.differences) all += Told(difference);
        return all;
    }

    // What a drawing becomes in another format.
    std::string Translated(Mode mode, const std::string& bytes) {
        EXPECT_TRUE(TranslateFiles(BeginInMemory(mode, bytes)));
        return last->outputBytes;
    }

    static std::string CountsOf(const Comparison& comparison, ComparedKind kind) {
        const ComparisonCount& count = comparison.counts[static_cast<std::size_t>(kind)];
        return std::to_string(count.equal) + " " + std::to_string(count.changed) + " " + std::to_string(count.missing) +
               " " + std::to_string(count.added);
    }

    Rows drawing{.points =
                     "1,\"101\",0,0,\"BOOM\",10,\"\"\n2,\"102\",10,0,\"HULP\",0,\"\"\n3,\"\",10,5,\"HULP\",0,\"\"\n"
                     "4,\"104\",15,5,\"HULP\",0,\"\"\n5,\"105\",50,50,\"HULP\",0,\"\"\n",
                 .lines = "1,\"MUUR\",0\n2,\"GEVEL\",0\n",
                 .edges =
                     "1,1,2,STRAIGHT\n1,2,4,STRAIGHT\n2,2,3,ARC_CENT\n2,3,4,ARC_CENT\n2,2,3,CIRCLE_CENT\n"
                     "2,3,2,CIRCLE_CENT\n",
                 .texts = "5,1,100,\"Kerk\"\n"};
};

}  // namespace korvande::testing
