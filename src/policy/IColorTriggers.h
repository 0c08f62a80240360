#pragma once

// The watched applications that may take the colours over.
class IColorTriggers
{
public:
    virtual ~IColorTriggers() = default;
    // True while a trigger's colours are in force: the tick then stands aside.
    virtual bool in_charge() = 0;
    // Reads the ColorTriggers list from the settings again.
    virtual void refresh_color_triggers() = 0;
};
