#pragma once

#include "base/Singleton.h"

// Process-wide keyboard access for the global hotkeys. Created with the
// other managers and never deleted: key grabs may still be released while
// the process winds down.
class SystemKeyboard : public Singleton<SystemKeyboard>
{
};
