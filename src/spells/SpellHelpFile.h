#pragma once

#include <QString>

// The help page on spells as a file that any browser can open: the copy in
// the program's resources, written under the user's data folder. The pages'
// own server wants a token that a browser outside the program must not get.
namespace SpellHelpFile {

// Where the copy goes.
QString path();
// Writes the copy when it is missing or differs; returns the path, or an
// empty text after one line on standard error.
QString write();

} // namespace SpellHelpFile
