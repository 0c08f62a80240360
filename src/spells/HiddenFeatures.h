#pragma once

#include <string>

// Entry point of the one-line command language. Every road that carries a
// text command (a second launch's words, the page's spell field, the tray)
// ends here.
class HiddenFeatures
{
public:
    virtual ~HiddenFeatures() = default;

    // Runs the command. Returns true when it was understood.
    bool activate_hidden_feature(const std::string& text);
};
