#pragma once

#include <QString>

#include "tray/TrayHost.h"

// The three lists of watched applications as the tray's pauser entries see
// them: newline-separated names, stored under one key per kind.
namespace PauserLists {

const char* list_key(PauserKind kind);
const char* switch_key(PauserKind kind);

// An entry shows checked when its name occurs anywhere in the list's text,
// so a name that is part of a listed name counts too.
bool shows_checked(const QString& list_text, const QString& name);

// The list after its entry for `name` was checked (the name added unless
// listed) or unchecked (every line equal to it removed).
QString toggled(const QString& list_text, const QString& name, bool checked);

} // namespace PauserLists
