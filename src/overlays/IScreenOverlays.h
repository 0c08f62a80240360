#pragma once

// What the controller asks of the overlay and lightness screens.
class IScreenOverlays
{
public:
    virtual ~IScreenOverlays() = default;
    // Shows, hides or recolours the screens as the settings now say; with
    // force they are made again even when nothing seems to have changed.
    virtual void refresh_overlay_screens(bool force) = 0;
    virtual void refresh_lightness_screens(bool force) = 0;
    // Forgets the selected area: the overlay covers whole screens again.
    virtual void reset_area() = 0;
    // Whether overlay windows are on the screens now.
    virtual bool has_overlay_screens() const = 0;
    // Once a second, with the tick.
    virtual void update() = 0;
};
