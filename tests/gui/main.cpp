#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/evtloop.h>

#include <clocale>

namespace {

// The tests run where the program's own main loop would.
class TestApp : public wxApp {
 public:
    bool OnInit() override { return true; }
    int OnRun() override {
        wxGUIEventLoop loop;
        const wxEventLoopActivator active(&loop);
        const int result = RUN_ALL_TESTS();
        // A filter that finds no test has tested nothing.
        return testing::UnitTest::GetInstance()->test_to_run_count() > 0 ? result : 1;
    }
};

}  // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    testing::InitGoogleTest(&argc, argv);
    wxApp::SetInstance(new TestApp());
    int ownArguments = 1;
    return wxEntry(ownArguments, argv);
}
