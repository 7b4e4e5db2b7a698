#pragma once

#include <wx/ctrlsub.h>
#include <wx/window.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/Text.h"

namespace korvande {

struct FormKORVANDE;
struct ListControl;
struct Options;

// The control of this name in a window, which must have it.
template <class Control>
Control& ControlNamed(const wxWindow& window, const char* name) {
    auto* const control = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, &window));
    if (control == nullptr) throw std::logic_error(std::string("no control ") + name);
    return *control;
}

// Shows the items of a list and the selected one.
void ShowList(wxItemContainer& items, const ListControl& list);

// Ties the controls of a window to the form's values, by their names: what a person changes is written to the form at
// once, and Show puts the form's values into the controls.
class Binding {
 public:
    Binding(wxWindow& window, FormKORVANDE& form);
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;
    ~Binding() = default;

    void Show() const;

 private:
    void BindText(wxWindow& window, const char* name, Text& value);
    void BindLabel(wxWindow& window, const char* name, const Text& value);
    void BindCheck(wxWindow& window, const char* name, bool& value);

    // A list of which one item is selected; `show` shows it.
    void BindList(wxWindow& window, const char* name, int& index, std::function<void(wxItemContainer&)> show);

    void BindCharacterSet(wxWindow& window, Options& options);
    void BindLogBookViewer(wxWindow& window, Options& options);

    // The options of a group exclude each other.
    struct OptionButton;
    void BindOptions(std::vector<OptionButton> group);

    std::vector<std::function<void()>> showing;
};

}  // namespace korvande
