<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_GB">
<context>
    <name>Translator</name>
    <message>
        <source>ACHROMATOMALY</source>
        <translation>Achromatomaly</translation>
    </message>
    <message>
        <source>ACHROMATOPSIA</source>
        <translation>Achromatopsia</translation>
    </message>
    <message>
        <source>ACTIVATE</source>
        <translation>Cast</translation>
    </message>
    <message>
        <source>ADD</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>ADVANCED_ABOUT</source>
        <translation>About</translation>
    </message>
    <message>
        <source>ADVANCED_ARTIFICIAL_INTELLIGENCE</source>
        <translation>AI</translation>
    </message>
    <message>
        <source>ADVANCED_BLUE_LIGHT</source>
        <translation>Blue light</translation>
    </message>
    <message>
        <source>ADVANCED_BRIGHTNESS</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>ADVANCED_COLOR_PAUSERS</source>
        <translation>Color pausers</translation>
    </message>
    <message>
        <source>ADVANCED_COLOR_SCHEME</source>
        <translation>Color Scheme</translation>
    </message>
    <message>
        <source>ADVANCED_COLOR_TEMPERATURE</source>
        <translation>Color Temperature</translation>
    </message>
    <message>
        <source>ADVANCED_COLOR_TRIGGERS</source>
        <translation>Color triggers</translation>
    </message>
    <message>
        <source>ADVANCED_CPU</source>
        <translation>CPU</translation>
    </message>
    <message>
        <source>ADVANCED_DEBUG</source>
        <translation>Debug</translation>
    </message>
    <message>
        <source>ADVANCED_EXERCISES</source>
        <translation>Exercises</translation>
    </message>
    <message>
        <source>ADVANCED_FEATURES</source>
        <translation>Features</translation>
    </message>
    <message>
        <source>ADVANCED_FONTS</source>
        <translation>Fonts</translation>
    </message>
    <message>
        <source>ADVANCED_GPU</source>
        <translation>GPU</translation>
    </message>
    <message>
        <source>ADVANCED_HARDWARE</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>ADVANCED_HIDDEN_FEATURES</source>
        <translation>Hidden features</translation>
    </message>
    <message>
        <source>ADVANCED_LANGUAGE</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>ADVANCED_LIGHTNESS</source>
        <translation>Lightness</translation>
    </message>
    <message>
        <source>ADVANCED_LOCATION</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>ADVANCED_MAGNIFICATION</source>
        <translation>Magnification</translation>
    </message>
    <message>
        <source>ADVANCED_MANAGE_MONITORS</source>
        <translation>Manage monitors</translation>
    </message>
    <message>
        <source>ADVANCED_MOON</source>
        <translation>Moon</translation>
    </message>
    <message>
        <source>ADVANCED_MOUSE_PAUSERS</source>
        <translation>Mouse pausers</translation>
    </message>
    <message>
        <source>ADVANCED_OVERLAY_SCREEN</source>
        <translation>Screen overlay</translation>
    </message>
    <message>
        <source>ADVANCED_OVRA</source>
        <translation>Ovra</translation>
    </message>
    <message>
        <source>ADVANCED_PWM_CONTROL</source>
        <translation>PWM control</translation>
    </message>
    <message>
        <source>ADVANCED_REST_SCREEN</source>
        <translation>Rest screen</translation>
    </message>
    <message>
        <source>ADVANCED_SCREEN_EFFECTS</source>
        <translation>Screen effects</translation>
    </message>
    <message>
        <source>ADVANCED_SETTINGS</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>ADVANCED_SETTINGS_TITLE</source>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>ADVANCED_SHORTCUTS</source>
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>ADVANCED_SLEEP</source>
        <translation>Sleep</translation>
    </message>
    <message>
        <source>ADVANCED_SOUNDS</source>
        <translation>Sounds</translation>
    </message>
    <message>
        <source>ADVANCED_SYSTEM</source>
        <translation>System</translation>
    </message>
    <message>
        <source>ADVANCED_TIMER</source>
        <translation>Timer</translation>
    </message>
    <message>
        <source>ADVANCED_TIMER_PAUSERS</source>
        <translation>Timer pausers</translation>
    </message>
    <message>
        <source>ADVANCED_TRANSITION</source>
        <translation>Transition</translation>
    </message>
    <message>
        <source>ANTI_ALIASING_FONTS</source>
        <translation>Anti-aliasing</translation>
    </message>
    <message>
        <source>ARABIC</source>
        <translation>Arabic</translation>
    </message>
    <message>
        <source>AUTO_CLOSE_REST_SCREEN</source>
        <translation>Close the rest screen when the rest is over</translation>
    </message>
    <message>
        <source>AUTOMATIC_MODE</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>AUTOSAVE_SETTINGS_CHANGES</source>
        <translation>Save changes as they are made</translation>
    </message>
    <message>
        <source>BEDTIME</source>
        <translation>Bedtime</translation>
    </message>
    <message>
        <source>BIOHACKER_MODE</source>
        <translation>Biohacker</translation>
    </message>
    <message>
        <source>BLOCK_KEYBOARD</source>
        <translation>Block the keyboard during a strict rest</translation>
    </message>
    <message>
        <source>BLUE</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>BREAK_EVERY</source>
        <translation>Break every</translation>
    </message>
    <message>
        <source>BULGARIAN</source>
        <translation>Bulgarian</translation>
    </message>
    <message>
        <source>CHINESE</source>
        <translation>Chinese</translation>
    </message>
    <message>
        <source>CLEAR_TYPE_FONTS</source>
        <translation>ClearType</translation>
    </message>
    <message>
        <source>COLOR_EFFECTS</source>
        <translation>Color effects</translation>
    </message>
    <message>
        <source>COLOR_SCHEME</source>
        <translation>Scheme</translation>
    </message>
    <message>
        <source>CONNECTION_CLOSED</source>
        <translation>Ovra is no longer running. Start it again to change its settings.</translation>
    </message>
    <message>
        <source>CONTINUE</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>CZECH</source>
        <translation>Czech</translation>
    </message>
    <message>
        <source>DARK_MODE</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>DAY_BLUE_LIGHT</source>
        <translation>Day Light</translation>
    </message>
    <message>
        <source>DAY_BRIGHTNESS</source>
        <translation>Day brightness</translation>
    </message>
    <message>
        <source>DAY_DIM</source>
        <translation>Day dim</translation>
    </message>
    <message>
        <source>DAY_OPACITY</source>
        <translation>Day opacity</translation>
    </message>
    <message>
        <source>DAY_TEMPERATURE</source>
        <translation>Day temperature</translation>
    </message>
    <message>
        <source>DAY_TRANSITION</source>
        <translation>Day transition</translation>
    </message>
    <message>
        <source>DEBUG_INFORMATION</source>
        <translation>Debug information</translation>
    </message>
    <message>
        <source>DECREASE_BRIGHTNESS</source>
        <translation>Decrease Brightness</translation>
    </message>
    <message>
        <source>DECREASE_TEMPERATURE</source>
        <translation>Decrease Temperature</translation>
    </message>
    <message>
        <source>DESTROY_UI_ON_CLOSE</source>
        <translation>Free this window's memory on close</translation>
    </message>
    <message>
        <source>DEUTERANOMALY</source>
        <translation>Deuteranomaly</translation>
    </message>
    <message>
        <source>DEUTERANOPIA</source>
        <translation>Deuteranopia</translation>
    </message>
    <message>
        <source>DISABLE</source>
        <translation>Disable</translation>
    </message>
    <message>
        <source>DISABLE_CAMERA</source>
        <translation>Disable camera</translation>
    </message>
    <message>
        <source>DUTCH</source>
        <translation>Dutch</translation>
    </message>
    <message>
        <source>ENABLE</source>
        <translation>Enable</translation>
    </message>
    <message>
        <source>ENABLE_CAMERA</source>
        <translation>Enable camera</translation>
    </message>
    <message>
        <source>END_OVERLAY_SCREEN</source>
        <translation>End Overlay Screen</translation>
    </message>
    <message>
        <source>ENGLISH</source>
        <translation>English</translation>
    </message>
    <message>
        <source>ENTER_YOUR_SPELL</source>
        <translation>Enter your spell</translation>
    </message>
    <message>
        <source>EXPORT_SETTINGS</source>
        <translation>Export settings</translation>
    </message>
    <message>
        <source>EXTENDED_VALUES</source>
        <translation>Extended values</translation>
    </message>
    <message>
        <source>FEATURE</source>
        <translation>Feature</translation>
    </message>
    <message>
        <source>FEATURE_ON_OFF</source>
        <translation>Point at a page to see whether it is in use</translation>
    </message>
    <message>
        <source>FONT_SMOOTHING_HIGH</source>
        <translation>Strong font smoothing</translation>
    </message>
    <message>
        <source>FONT_SMOOTHING_LIGHT</source>
        <translation>Light font smoothing</translation>
    </message>
    <message>
        <source>FONT_SMOOTHING_MEDIUM</source>
        <translation>Medium font smoothing</translation>
    </message>
    <message>
        <source>FONTS_TYPE</source>
        <translation>Font rendering</translation>
    </message>
    <message>
        <source>FOR</source>
        <translation>for</translation>
    </message>
    <message>
        <source>FRENCH</source>
        <translation>French</translation>
    </message>
    <message>
        <source>FULL_MOON_OFFSET</source>
        <translation>Full moon offset</translation>
    </message>
    <message>
        <source>FULLSCREEN_APPS</source>
        <translation>Also for full-screen applications</translation>
    </message>
    <message>
        <source>GDIPP</source>
        <translation>GDI++</translation>
    </message>
    <message>
        <source>GERMAN</source>
        <translation>German</translation>
    </message>
    <message>
        <source>GRAYSCALE_1</source>
        <translation>Grayscale 1</translation>
    </message>
    <message>
        <source>GRAYSCALE_2</source>
        <translation>Grayscale 2</translation>
    </message>
    <message>
        <source>GRAYSCALE_3</source>
        <translation>Grayscale 3</translation>
    </message>
    <message>
        <source>GRAYSCALE_RED</source>
        <translation>Red grayscale</translation>
    </message>
    <message>
        <source>GREEK</source>
        <translation>Greek</translation>
    </message>
    <message>
        <source>GREEN</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>GROOT</source>
        <translation>Groot</translation>
    </message>
    <message>
        <source>HAVE_A_BREAK</source>
        <translation>Have a break</translation>
    </message>
    <message>
        <source>HAVE_A_REST_NOW</source>
        <translation>Have a rest now</translation>
    </message>
    <message>
        <source>HEALTH_MODE</source>
        <translation>Health</translation>
    </message>
    <message>
        <source>HIDE_BLINK_SCREEN</source>
        <translation>Hide blink screen</translation>
    </message>
    <message>
        <source>HIDE_TASKBAR_ICON_ON_CLOSE</source>
        <translation>Hide the taskbar button on close</translation>
    </message>
    <message>
        <source>HOUR</source>
        <translation>hour</translation>
    </message>
    <message>
        <source>IMPORT_SETTINGS</source>
        <translation>Import settings</translation>
    </message>
    <message>
        <source>INCREASE_BRIGHTNESS</source>
        <translation>Increase Brightness</translation>
    </message>
    <message>
        <source>INCREASE_TEMPERATURE</source>
        <translation>Increase Temperature</translation>
    </message>
    <message>
        <source>INDIAN</source>
        <translation>Indian</translation>
    </message>
    <message>
        <source>INDIGO</source>
        <translation>Indigo</translation>
    </message>
    <message>
        <source>INVERT_COLORS</source>
        <translation>Invert colors</translation>
    </message>
    <message>
        <source>ITALIAN</source>
        <translation>Italian</translation>
    </message>
    <message>
        <source>JAPANESE</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>KEYBOARD_SHORTCUTS</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message>
        <source>KOREAN</source>
        <translation>Korean</translation>
    </message>
    <message>
        <source>LANGUAGE</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>LATITUDE</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>LEADING_COLOR</source>
        <translation>Leading color</translation>
    </message>
    <message>
        <source>LEMON</source>
        <translation>Lemon</translation>
    </message>
    <message>
        <source>LIST_HINT</source>
        <translation>One application a line</translation>
    </message>
    <message>
        <source>LOADING</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>LONGITUDE</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>MAGENTA</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>MAGMUS</source>
        <translation>Magmus</translation>
    </message>
    <message>
        <source>MANUAL_AUTOMATIC_TOOGLE</source>
        <translation>Manual/Automatic Toggle</translation>
    </message>
    <message>
        <source>MANUAL_BLUE_LIGHT</source>
        <translation>Set the blue light myself</translation>
    </message>
    <message>
        <source>MANUAL_BRIGHTNESS</source>
        <translation>Set the brightness myself</translation>
    </message>
    <message>
        <source>MANUAL_COLOR_SETTINGS</source>
        <translation>Set the color temperature myself</translation>
    </message>
    <message>
        <source>MANUAL_LOCATION</source>
        <translation>Set the location myself</translation>
    </message>
    <message>
        <source>MANUAL_MODE</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>MANUAL_NIGHT_DURATION</source>
        <translation>Set the night by the clock</translation>
    </message>
    <message>
        <source>MATCH_BRIGHTNESS_TO_LIGHTING</source>
        <translation>Match brightness to the room</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>MONITOR_1</source>
        <translation>Monitor 1</translation>
    </message>
    <message>
        <source>MONITOR_2</source>
        <translation>Monitor 2</translation>
    </message>
    <message>
        <source>MONITOR_3</source>
        <translation>Monitor 3</translation>
    </message>
    <message>
        <source>MONITOR_4</source>
        <translation>Monitor 4</translation>
    </message>
    <message>
        <source>MONITORS_IN_USE</source>
        <translation>Monitors that Ovra tints</translation>
    </message>
    <message>
        <source>MOON_PHASES</source>
        <translation>Moon phases</translation>
    </message>
    <message>
        <source>MOVIE_MODE</source>
        <translation>Movie</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>NEGATIVE_GRAYSCALE</source>
        <translation>Negative grayscale</translation>
    </message>
    <message>
        <source>NEGATIVE_GRAYSCALE_RED</source>
        <translation>Negative red grayscale</translation>
    </message>
    <message>
        <source>NEGATIVE_SEPIA</source>
        <translation>Negative sepia</translation>
    </message>
    <message>
        <source>NEW_MOON_OFFSET</source>
        <translation>New moon offset</translation>
    </message>
    <message>
        <source>NIGHT_BLUE_LIGHT</source>
        <translation>Night Light</translation>
    </message>
    <message>
        <source>NIGHT_BRIGHTNESS</source>
        <translation>Night brightness</translation>
    </message>
    <message>
        <source>NIGHT_DIM</source>
        <translation>Night dim</translation>
    </message>
    <message>
        <source>NIGHT_END_TIME</source>
        <translation>Night ends at</translation>
    </message>
    <message>
        <source>NIGHT_OPACITY</source>
        <translation>Night opacity</translation>
    </message>
    <message>
        <source>NIGHT_START_TIME</source>
        <translation>Night starts at</translation>
    </message>
    <message>
        <source>NIGHT_TEMPERATURE</source>
        <translation>Night temperature</translation>
    </message>
    <message>
        <source>NIGHT_TRANSITION</source>
        <translation>Night transition</translation>
    </message>
    <message>
        <source>NORMAL</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>OLAF</source>
        <translation>Olaf</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>On</translation>
    </message>
    <message>
        <source>OPACITY</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>OPENED_ELSEWHERE</source>
        <translation>The settings are open in another window now. You can close this one.</translation>
    </message>
    <message>
        <source>OPTIMIZE_UI_CREATION</source>
        <translation>Open this window only when asked</translation>
    </message>
    <message>
        <source>ORANGE</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>OVERLAY_COLOR</source>
        <translation>Overlay color</translation>
    </message>
    <message>
        <source>OVERLAY_MODE</source>
        <translation>Overlay</translation>
    </message>
    <message>
        <source>OVRA</source>
        <translation>Ovra</translation>
    </message>
    <message>
        <source>OVRA_LOCATION</source>
        <translation>Location</translation>
    </message>
    <message>
        <source>OVRA_MODE</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>OVRA_TIMER</source>
        <translation>Timer</translation>
    </message>
    <message>
        <source>OVRA_TYPE</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>PAUSE_RESUME_OVRA</source>
        <translation>Pause/Resume Ovra</translation>
    </message>
    <message>
        <source>PAUSE_RESUME_TIMER</source>
        <translation>Pause/Resume Timer</translation>
    </message>
    <message>
        <source>PAUSE_TRANSITION</source>
        <translation>Pause transition</translation>
    </message>
    <message>
        <source>PAUSED_MODE</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>PORTUGUESE</source>
        <translation>Portuguese</translation>
    </message>
    <message>
        <source>POSTPONE_DURATION</source>
        <translation>Postpone by</translation>
    </message>
    <message>
        <source>PRESS_KEYS</source>
        <translation>Press the keys</translation>
    </message>
    <message>
        <source>PROGRAMMING_MODE</source>
        <translation>Programming</translation>
    </message>
    <message>
        <source>PROTANOMALY</source>
        <translation>Protanomaly</translation>
    </message>
    <message>
        <source>PROTANOPIA</source>
        <translation>Protanopia</translation>
    </message>
    <message>
        <source>PUBLISHER</source>
        <translation>Publisher</translation>
    </message>
    <message>
        <source>PURPLE</source>
        <translation>Purple</translation>
    </message>
    <message>
        <source>PWM_FREQUENCY</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>PWM_MAX_FREQUENCY</source>
        <translation>Highest frequency</translation>
    </message>
    <message>
        <source>PWM_STATUS</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>PWM_UPDATE_CONTINUOUSLY</source>
        <translation>Keep setting it</translation>
    </message>
    <message>
        <source>QUIT_OVRA</source>
        <translation>Quit Ovra</translation>
    </message>
    <message>
        <source>RADIUS</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>READING_MODE</source>
        <translation>Reading</translation>
    </message>
    <message>
        <source>RED</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>RESET_BLUE_LIGHT</source>
        <translation>Reset blue light</translation>
    </message>
    <message>
        <source>RESET_COLORS</source>
        <translation>Reset colors</translation>
    </message>
    <message>
        <source>RESET_SELECTED_AREA</source>
        <translation>Whole screen</translation>
    </message>
    <message>
        <source>RESET_SETTINGS_TO_DEFAULT</source>
        <translation>Reset settings to default</translation>
    </message>
    <message>
        <source>RESET_TEMPERATURE</source>
        <translation>Reset temperature</translation>
    </message>
    <message>
        <source>REST_MODE</source>
        <translation>Rest mode</translation>
    </message>
    <message>
        <source>REST_MODE_MESSAGE</source>
        <translation>You are in rest mode now. Edit the timer in the settings panel.</translation>
    </message>
    <message>
        <source>REST_SCREEN_LITE</source>
        <translation>Lite</translation>
    </message>
    <message>
        <source>REVERT_COLORS</source>
        <translation>Normal colors</translation>
    </message>
    <message>
        <source>RUSSIAN</source>
        <translation>Russian</translation>
    </message>
    <message>
        <source>SAVE_AND_CLOSE</source>
        <translation>Save and close</translation>
    </message>
    <message>
        <source>SCARLET</source>
        <translation>Scarlet</translation>
    </message>
    <message>
        <source>SCREEN_DIM</source>
        <translation>Screen dim</translation>
    </message>
    <message>
        <source>SCREEN_EFFECT</source>
        <translation>Effect</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sec</translation>
    </message>
    <message>
        <source>SELECT_SCREEN_AREA</source>
        <translation>Select an area</translation>
    </message>
    <message>
        <source>SEPIA</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>SHORTCUT</source>
        <translation>Shortcut</translation>
    </message>
    <message>
        <source>SHORTCUTS</source>
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>SHOW_BLINK_SCREEN</source>
        <translation>Show blink screen</translation>
    </message>
    <message>
        <source>SIMPLE</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>SIMPLE_FONTS</source>
        <translation>Simple</translation>
    </message>
    <message>
        <source>SIMPLE_INVERSION</source>
        <translation>Inverted</translation>
    </message>
    <message>
        <source>SKIP_REST</source>
        <translation>Skip Rest</translation>
    </message>
    <message>
        <source>SLEEP_BRIGHTNESS</source>
        <translation>Sleep brightness</translation>
    </message>
    <message>
        <source>SLEEP_LIGHT</source>
        <translation>Sleep light</translation>
    </message>
    <message>
        <source>SLEEP_MODE</source>
        <translation>Sleep</translation>
    </message>
    <message>
        <source>SLEEP_TRANSITION</source>
        <translation>Sleep transition</translation>
    </message>
    <message>
        <source>SMART_INVERSION_1</source>
        <translation>Smart inversion 1</translation>
    </message>
    <message>
        <source>SMART_INVERSION_2</source>
        <translation>Smart inversion 2</translation>
    </message>
    <message>
        <source>SMART_INVERSION_3</source>
        <translation>Smart inversion 3</translation>
    </message>
    <message>
        <source>SMART_INVERSION_4</source>
        <translation>Smart inversion 4</translation>
    </message>
    <message>
        <source>SMART_INVERSION_5</source>
        <translation>Smart inversion 5</translation>
    </message>
    <message>
        <source>SPANISH</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>STANDARD</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>START_BACK_EXERCISES</source>
        <translation>Back exercises</translation>
    </message>
    <message>
        <source>START_EYE_EXERCISES</source>
        <translation>Eye exercises</translation>
    </message>
    <message>
        <source>START_NECK_EXERCISES</source>
        <translation>Neck exercises</translation>
    </message>
    <message>
        <source>START_OVERLAY_SCREEN</source>
        <translation>Start Overlay Screen</translation>
    </message>
    <message>
        <source>START_OVRA_ON_STARTUP</source>
        <translation>Start Ovra with the session</translation>
    </message>
    <message>
        <source>START_REST</source>
        <translation>Start Rest</translation>
    </message>
    <message>
        <source>START_WORKING</source>
        <translation>Start working</translation>
    </message>
    <message>
        <source>STRICT</source>
        <translation>Strict</translation>
    </message>
    <message>
        <source>SUNGLASSES_MODE</source>
        <translation>Sunglasses</translation>
    </message>
    <message>
        <source>TIME_IS</source>
        <translation>Time is</translation>
    </message>
    <message>
        <source>TIME_ZONE_OFFSET</source>
        <translation>Time zone offset</translation>
    </message>
    <message>
        <source>TIMER_EXERCISE</source>
        <translation>Exercise</translation>
    </message>
    <message>
        <source>TIMER_NORMAL</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>TIMER_NOTIFICATION</source>
        <translation>Notification</translation>
    </message>
    <message>
        <source>TIMER_OFF</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>TIMER_PRODUCTIVE</source>
        <translation>Productive</translation>
    </message>
    <message>
        <source>TIMER_SOUND</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>TIMER_STRICT</source>
        <translation>Strict</translation>
    </message>
    <message>
        <source>TIMER_TASKBAR</source>
        <translation>Taskbar</translation>
    </message>
    <message>
        <source>TIMER_TYPE</source>
        <translation>Timer type</translation>
    </message>
    <message>
        <source>TRANSITION_TIMES</source>
        <translation>Times of today</translation>
    </message>
    <message>
        <source>TRITANOMALY</source>
        <translation>Tritanomaly</translation>
    </message>
    <message>
        <source>TRITANOPIA</source>
        <translation>Tritanopia</translation>
    </message>
    <message>
        <source>TURKISH</source>
        <translation>Turkish</translation>
    </message>
    <message>
        <source>TURQUOISE</source>
        <translation>Turquoise</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>UKRAINIAN</source>
        <translation>Ukrainian</translation>
    </message>
    <message>
        <source>USE_ADVANCED_SETTINGS</source>
        <translation>Use Advanced Settings</translation>
    </message>
    <message>
        <source>USE_AUTOMATIC_BRIGHTNESS</source>
        <translation>Automatic brightness</translation>
    </message>
    <message>
        <source>USE_BLINK_DETECTION</source>
        <translation>Count my blinks</translation>
    </message>
    <message>
        <source>USE_COLOR_EFFECTS</source>
        <translation>Use Color Effects</translation>
    </message>
    <message>
        <source>USE_COLOR_PAUSERS</source>
        <translation>Pause the tint for these applications</translation>
    </message>
    <message>
        <source>USE_COLOR_TRIGGERS</source>
        <translation>Use colors of their own for these applications</translation>
    </message>
    <message>
        <source>USE_GAMMA_FIXER</source>
        <translation>Restore the tint when another program changes it</translation>
    </message>
    <message>
        <source>USE_KEYBOARD_INACTIVITY</source>
        <translation>Use Keyboard inactivity for pausing Work timer</translation>
    </message>
    <message>
        <source>USE_KEYBOARD_SHORTCUTS</source>
        <translation>Use keyboard shortcuts</translation>
    </message>
    <message>
        <source>USE_LOW_LEVEL_COLOR_API</source>
        <translation>Use the low-level color interface</translation>
    </message>
    <message>
        <source>USE_MOUSE_INACTIVITY</source>
        <translation>Use Mouse inactivity for pausing Work timer</translation>
    </message>
    <message>
        <source>USE_MOUSE_PAUSERS</source>
        <translation>Ignore the mouse in these applications</translation>
    </message>
    <message>
        <source>USE_PER_MONITOR_SETTINGS</source>
        <translation>Settings for each monitor</translation>
    </message>
    <message>
        <source>USE_PWM_CONTROL</source>
        <translation>Control the backlight frequency</translation>
    </message>
    <message>
        <source>USE_SLEEP_LIGHT</source>
        <translation>Use a sleep light</translation>
    </message>
    <message>
        <source>USE_SMART_BRIGHTNESS</source>
        <translation>Smart brightness</translation>
    </message>
    <message>
        <source>USE_SMART_INVERSION</source>
        <translation>Smart inversion</translation>
    </message>
    <message>
        <source>USE_SOFTWARE_MOUSE</source>
        <translation>Use a software mouse pointer</translation>
    </message>
    <message>
        <source>USE_SOUNDS</source>
        <translation>Play a sound before a rest</translation>
    </message>
    <message>
        <source>USE_TIMER_PAUSERS</source>
        <translation>Pause the timer for these applications</translation>
    </message>
    <message>
        <source>VERSION</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>VIOLET</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>WAKE_TIME</source>
        <translation>Wake time</translation>
    </message>
    <message>
        <source>WASHOUT_1</source>
        <translation>Washout 1</translation>
    </message>
    <message>
        <source>WASHOUT_2</source>
        <translation>Washout 2</translation>
    </message>
    <message>
        <source>WASHOUT_3</source>
        <translation>Washout 3</translation>
    </message>
    <message>
        <source>WEBSITE</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>X_POSITION</source>
        <translation>X position</translation>
    </message>
    <message>
        <source>Y_POSITION</source>
        <translation>Y position</translation>
    </message>
    <message>
        <source>YELLOW</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>ZOOM_IN</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>ZOOM_IN_LABEL</source>
        <translation>Make everything larger</translation>
    </message>
    <message>
        <source>ZOOM_OUT</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>ZOOM_OUT_LABEL</source>
        <translation>Make everything smaller</translation>
    </message>
</context>
</TS>
