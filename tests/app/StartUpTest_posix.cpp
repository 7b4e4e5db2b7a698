#include "tests/app/AppTest.h"

namespace korvande::testing {

namespace {

class PosixStartUp : public AppTest {};

TEST_F(PosixStartUp, AProjectFolderThatMayNotBeWrittenIsTold) {
    InstallLiscad();
    {
        const ReadOnlyFolder readOnly(projects);
        EXPECT_EQ(StartUp(form, {}), AfterStartUp::OpenWindow);
    }
    ASSERT_EQ(screen.messages.size(), 1U);
    EXPECT_EQ(screen.messages[0],
              "Kon bestand: '" + projects + "/Leeg Project.nst' niet opslaan;\nFoutcode: 70\nToegang geweigerd");
    EXPECT_EQ(ProjectNames(), "");
    EXPECT_EQ(form.CurrentProject, u"");
}

// A first start: there is no LISCAD here, and nothing tells where the projects are.
class FirstStart : public AppTest {
 protected:
    FirstStart() {
        form.askFolder = [this](TextView title) {
            titles.push_back(ToUtf8(title));
            return chosen;
        };
    }

    static std::string UserPath() {
        return TestRegistry::Value(u"SOFTWARE\\LISTECH\\LISCAD\\RELEASE\\SEE", u"UserPath");
    }

    std::vector<std::string> titles;
    std::optional<Text> chosen = FromUtf8(projects);
};

TEST_F(FirstStart, AFolderForTheProjectsIsOfferedAndThenTheWindowOpens) {
    screen.answers = {Answer::Ok, Answer::Yes};
    EXPECT_EQ(StartUp(form, {}), AfterStartUp::OpenWindow);
    EXPECT_EQ(screen.messages,
              (std::vector<std::string>{
                  "Liscad niet gevonden; afbreken",
                  "KORVANDE werkt hier ook zonder LISCAD: het heeft alleen een map voor de projecten nodig.\n\n"
                  "Nu een map kiezen?"}));
    EXPECT_EQ(screen.boxes[1].buttons, Buttons::YesNo);
    EXPECT_EQ(screen.boxes[1].icon, Icon::Question);
    EXPECT_EQ(titles, std::vector<std::string>{"Map voor de projecten"});
    EXPECT_EQ(UserPath(), projects);
    EXPECT_EQ(ProjectNames(), "Leeg Project.nst");
    EXPECT_EQ(form.CurrentProject, u"Leeg Project.nst");
}

TEST_F(FirstStart, TheSecondStartAsksNothing) {
    screen.answers = {Answer::Ok, Answer::Yes};
    StartUp(form, {});
    screen.messages.clear();
    FormKORVANDE next(screen);
    EXPECT_EQ(StartUp(next, {}), AfterStartUp::OpenWindow);
    EXPECT_TRUE(screen.messages.empty());
    EXPECT_EQ(next.CurrentProject, u"Leeg Project.nst");
}

TEST_F(FirstStart, WithoutAFolderTheProgramEndsAndNothingIsWritten) {
    screen.answers = {Answer::Ok, Answer::No};
    EXPECT_EQ(StartUp(form, {}), AfterStartUp::EndProgram);
    EXPECT_TRUE(titles.empty());
    screen.answers = {Answer::Ok, Answer::Yes};
    chosen.reset();
    EXPECT_EQ(StartUp(form, {}), AfterStartUp::EndProgram);
    EXPECT_EQ(titles.size(), 1U);
    EXPECT_EQ(UserPath(), "(none)");
    EXPECT_EQ(ProjectNames(), "");
}

TEST_F(FirstStart, ARegistrationIsOfferedNoFolder) {
    EXPECT_EQ(StartUp(form, {u"/LISCAD", true}), AfterStartUp::EndProgram);
    EXPECT_EQ(screen.messages, std::vector<std::string>{"Liscad niet gevonden; afbreken"});
}

TEST_F(FirstStart, AFolderThatCannotBeRememberedIsToldAndTheProgramEnds) {
    screen.answers = {Answer::Ok, Answer::Yes};
    chosen = u"/tmp/regel\n2";
    EXPECT_EQ(StartUp(form, {}), AfterStartUp::EndProgram);
    EXPECT_EQ(screen.messages.back(), "De map kan niet worden bewaard; afbreken");
    EXPECT_EQ(screen.boxes.back().icon, Icon::Critical);
}

}  // namespace

}  // namespace korvande::testing
