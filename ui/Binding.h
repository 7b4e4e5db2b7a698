#pragma once

#include <wx/ctrlsub.h>
#include <wx/window.h>

#include <functional>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <vector>

#include "project/frmKORVANDE.h"

namespace korvande {

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

    void Show() const;

 private:
    void BindText(wxWindow& window, const char* name, Text FormKORVANDE::*value);
    void BindLabel(wxWindow& window, const char* name, Text FormKORVANDE::*value);
    void BindCheck(wxWindow& window, const char* name, bool FormKORVANDE::*value);
    void BindList(wxWindow& window, const char* name, ListControl FormKORVANDE::*value);

    // The options of a group exclude each other; `select` writes the chosen one to the form.
    struct Option {
        const char* name;
        bool FormKORVANDE::*value;
    };
    void BindOptions(wxWindow& window, std::initializer_list<Option> options,
                     const std::function<void(bool FormKORVANDE::*)>& select);

    FormKORVANDE& form;
    std::vector<std::function<void()>> showing;
};

}  // namespace korvande
