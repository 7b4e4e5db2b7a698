#pragma once

namespace korvande {

// The per-user settings: the current project ("CurrProject"), the coordinate selection ("ClipXY") and its rectangle
// ("MinX", "MaxX", "MinY", "MaxY", metres), kept in the registry of the current user.
void ReadUserSettings();
void SaveUserSettings();

}  // namespace korvande
