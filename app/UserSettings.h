#pragma once

namespace korvande {

struct FormKORVANDE;

// The per-user settings: the current project ("CurrProject") and the options that are kept per user, the coordinate
// selection and its rectangle, in the registry of the current user.
void ReadUserSettings(FormKORVANDE& form);
void SaveUserSettings(const FormKORVANDE& form);

}  // namespace korvande
