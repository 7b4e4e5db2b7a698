#include "ui/GridKeys.h"

#include "app/GridEditing.h"

namespace korvande {

namespace {

int WithoutPad(int key) {
    switch (key) {
        case WXK_NUMPAD_ENTER:
            return WXK_RETURN;
        case WXK_NUMPAD_UP:
            return WXK_UP;
        case WXK_NUMPAD_DOWN:
            return WXK_DOWN;
        case WXK_NUMPAD_INSERT:
            return WXK_INSERT;
        case WXK_NUMPAD_DELETE:
            return WXK_DELETE;
        default:
            return key;
    }
}

struct Shortcut {
    int modifiers;
    int key;
    GridKey meaning;
};
constexpr Shortcut shortcuts[] = {
    {wxMOD_NONE, WXK_F2, GridKey::Edit},           {wxMOD_NONE, WXK_TAB, GridKey::Next},
    {wxMOD_SHIFT, WXK_TAB, GridKey::Previous},     {wxMOD_CONTROL, 'C', GridKey::Copy},
    {wxMOD_CONTROL, WXK_INSERT, GridKey::Copy},    {wxMOD_CONTROL, 'X', GridKey::Cut},
    {wxMOD_SHIFT, WXK_DELETE, GridKey::Cut},       {wxMOD_CONTROL, 'V', GridKey::Paste},
    {wxMOD_SHIFT, WXK_INSERT, GridKey::Paste},     {wxMOD_CONTROL, 'Z', GridKey::Undo},
    {wxMOD_CONTROL, 'Y', GridKey::Redo},           {wxMOD_CONTROL | wxMOD_SHIFT, 'Z', GridKey::Redo},
    {wxMOD_ALT, WXK_UP, GridKey::RowUp},           {wxMOD_ALT, WXK_DOWN, GridKey::RowDown},
    {wxMOD_NONE, WXK_WINDOWS_MENU, GridKey::Menu}, {wxMOD_NONE, WXK_MENU, GridKey::Menu},
    {wxMOD_SHIFT, WXK_F10, GridKey::Menu},
};

}  // namespace

std::int16_t GridKeyCode(const wxKeyEvent& event) {
    constexpr std::int16_t otherKey = 255;
    switch (WithoutPad(event.GetKeyCode())) {
        case WXK_RETURN:
            return keys::enter;
        case WXK_ESCAPE:
            return keys::escape;
        case WXK_UP:
            return keys::up;
        case WXK_DOWN:
            return keys::down;
        case WXK_INSERT:
            return keys::insertRow;
        case WXK_DELETE:
            return keys::deleteRow;
        default:
            return otherKey;
    }
}

GridKey GridKeyOf(const wxKeyEvent& event) {
    const int key = WithoutPad(event.GetKeyCode());
    for (const Shortcut& shortcut : shortcuts) {
        if (shortcut.modifiers == event.GetModifiers() && shortcut.key == key) return shortcut.meaning;
    }
    return GridKey::None;
}

}  // namespace korvande
