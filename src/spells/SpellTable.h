#pragma once

#include <vector>

// The spells as the interpreter tries them, top to bottom: the first form
// that matches decides. The help page is made from this same table, so that
// what it lists is what the program understands.
enum class Spell {
    Help,
    Open,
    SetTemperature,
    SetDayTemperature,
    SetNightTemperature,
    SetBrightness,
    SetDayBrightness,
    SetNightBrightness,
    UseHiddenFeatures,
    UseGammaFixer,
    UseCalibrationAtStartup,
    StartAtStartup,
    CreateShortcutsAutomatically,
    UseSpinningTrayIcon,
    UseManualTemperature,
    UseManualBrightness,
    EnableMonitor,
    ResetColors,
    ResetSettings,
    InvertColors,
    ZeroBlueLight,
    PreserveGamma,
    UseHiddenFeaturesNotifications,
    UseInvertedIcons,
    UseManualLocation,
    SetLatitude,
    SetLongitude,
    UseSoftwareCursor,
    UseManualNightDuration,
    SetNightStartTime,
    SetNightEndTime,
    EnableConflictingApplications,
    EnablePage,
    EnablePageOfTwoWords,
    UseGhostIcon,
    AllowMultipleInstances,
    UseKeyboardHook,
    Import,
    ImportString,
    Export,
    ExportString,
    SetUiScale,
    TestTrigger,
    Deadpoll,
    FixedPage,
};

struct SpellRow
{
    // One to three forms of the same spell; the unused ones are null.
    const char* forms[3];
    Spell spell;
    // One English sentence for the help page.
    const char* help;
    // The address a fixed word opens; null for every other spell.
    const char* address;
};

const std::vector<SpellRow>& spell_table();
