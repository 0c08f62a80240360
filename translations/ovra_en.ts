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
<context>
    <name>HiddenFeatures</name>
    <message>
        <source>Invalid spell:</source>
        <translation>Invalid spell:</translation>
    </message>
    <message>
        <source>Invalid spell</source>
        <translation>Invalid spell</translation>
    </message>
    <message>
        <source>The spell</source>
        <translation>The spell</translation>
    </message>
    <message>
        <source> seems wrong. Check the syntax or try with some other hidden feature.</source>
        <translation> seems wrong. Check the syntax or try with some other hidden feature.</translation>
    </message>
    <message>
        <source>Use &quot;help&quot; to see the list of all hidden features :)</source>
        <translation>Use &quot;help&quot; to see the list of all hidden features :)</translation>
    </message>
    <message>
        <source>Reset colors</source>
        <translation>Reset colors</translation>
    </message>
    <message>
        <source>Screen colors are reset to default values</source>
        <translation>Screen colors are reset to default values</translation>
    </message>
    <message>
        <source>Reset settings</source>
        <translation>Reset settings</translation>
    </message>
    <message>
        <source>Ovra settings are reset to default values</source>
        <translation>Ovra settings are reset to default values</translation>
    </message>
    <message>
        <source>Invert</source>
        <translation>Invert</translation>
    </message>
    <message>
        <source>Colors are inverted</source>
        <translation>Colors are inverted</translation>
    </message>
    <message>
        <source>Zero blue light</source>
        <translation>Zero blue light</translation>
    </message>
    <message>
        <source>All blue light is removed from the screen</source>
        <translation>All blue light is removed from the screen</translation>
    </message>
    <message>
        <source>Gamma preservation enabled</source>
        <translation>Gamma preservation enabled</translation>
    </message>
    <message>
        <source>Ovra will respect your color calibration from now on. Close and start Ovra mini again and it will preserve your colors during the day</source>
        <translation>Ovra will respect your color calibration from now on. Close and start Ovra mini again and it will preserve your colors during the day</translation>
    </message>
    <message>
        <source>Gamma preservation disabled</source>
        <translation>Gamma preservation disabled</translation>
    </message>
    <message>
        <source>Ovra will not respect your color calibration from now on. It will use the default monitor settings instead</source>
        <translation>Ovra will not respect your color calibration from now on. It will use the default monitor settings instead</translation>
    </message>
    <message>
        <source>Software cursor enabled</source>
        <translation>Software cursor enabled</translation>
    </message>
    <message>
        <source>Color changes will apply also on the cursor. If it starts to dissappear use disable software cursor to make it bright again.</source>
        <translation>Color changes will apply also on the cursor. If it starts to dissappear use disable software cursor to make it bright again.</translation>
    </message>
    <message>
        <source>Hardware cursor enabled</source>
        <translation>Hardware cursor enabled</translation>
    </message>
    <message>
        <source>Color changes will not apply on the cursor. If you don&apos;t like the bright blue cursor at night use enable software cursor to make apply color changes on the cursor.</source>
        <translation>Color changes will not apply on the cursor. If you don&apos;t like the bright blue cursor at night use enable software cursor to make apply color changes on the cursor.</translation>
    </message>
    <message>
        <source>Manual night duration enabled</source>
        <translation>Manual night duration enabled</translation>
    </message>
    <message>
        <source>Ovra mini will use manual night duration. Set start and end time with the hidden features</source>
        <translation>Ovra mini will use manual night duration. Set start and end time with the hidden features</translation>
    </message>
    <message>
        <source>Manual night duration disabled</source>
        <translation>Manual night duration disabled</translation>
    </message>
    <message>
        <source>Ovra mini will use automatic night duration based on location. The location is used for calculating Sun position and day and night duration</source>
        <translation>Ovra mini will use automatic night duration based on location. The location is used for calculating Sun position and day and night duration</translation>
    </message>
    <message>
        <source>Manual location enabled</source>
        <translation>Manual location enabled</translation>
    </message>
    <message>
        <source>Ovra mini will use your manual location. Set latitude and longitude with the hidden features</source>
        <translation>Ovra mini will use your manual location. Set latitude and longitude with the hidden features</translation>
    </message>
    <message>
        <source>Manual location disabled</source>
        <translation>Manual location disabled</translation>
    </message>
    <message>
        <source>Ovra mini will use automatic location. The location is used for calculating Sun position and day and night duration</source>
        <translation>Ovra mini will use automatic location. The location is used for calculating Sun position and day and night duration</translation>
    </message>
    <message>
        <source>Manual brightness enabled</source>
        <translation>Manual brightness enabled</translation>
    </message>
    <message>
        <source>You are now using Ovra mini Mixed mode</source>
        <translation>You are now using Ovra mini Mixed mode</translation>
    </message>
    <message>
        <source>Manual brightness disabled</source>
        <translation>Manual brightness disabled</translation>
    </message>
    <message>
        <source>Ovra mini will use your selected mode for brightness again</source>
        <translation>Ovra mini will use your selected mode for brightness again</translation>
    </message>
    <message>
        <source>Manual temperature enabled</source>
        <translation>Manual temperature enabled</translation>
    </message>
    <message>
        <source>You are now using Ovra Mixed mode</source>
        <translation>You are now using Ovra Mixed mode</translation>
    </message>
    <message>
        <source>Manual temperature disabled</source>
        <translation>Manual temperature disabled</translation>
    </message>
    <message>
        <source>Ovra will use your selected mode for temperature again</source>
        <translation>Ovra will use your selected mode for temperature again</translation>
    </message>
    <message>
        <source>Start at startup enabled</source>
        <translation>Start at startup enabled</translation>
    </message>
    <message>
        <source>Ovra mini will start when you turn ON your computer</source>
        <translation>Ovra mini will start when you turn ON your computer</translation>
    </message>
    <message>
        <source>Start at startup disabled</source>
        <translation>Start at startup disabled</translation>
    </message>
    <message>
        <source>Ovra mini will not start when you turn ON your computer</source>
        <translation>Ovra mini will not start when you turn ON your computer</translation>
    </message>
    <message>
        <source>Notifications enabled</source>
        <translation>Notifications enabled</translation>
    </message>
    <message>
        <source>Hidden features notifications are enabled. They are show so you will know when your spell is successful</source>
        <translation>Hidden features notifications are enabled. They are show so you will know when your spell is successful</translation>
    </message>
    <message>
        <source>Notifications disabled</source>
        <translation>Notifications disabled</translation>
    </message>
    <message>
        <source>Hidden features notifications are disabled. This is the last notification that you will see</source>
        <translation>Hidden features notifications are disabled. This is the last notification that you will see</translation>
    </message>
    <message>
        <source>Tray icon rotation is enabled</source>
        <translation>Tray icon rotation is enabled</translation>
    </message>
    <message>
        <source>The tray icon will rotate when Ovra is changing screen colors. This is used to show when Ovra mini is changing colors and your screen is not calibrated</source>
        <translation>The tray icon will rotate when Ovra is changing screen colors. This is used to show when Ovra mini is changing colors and your screen is not calibrated</translation>
    </message>
    <message>
        <source>Tray icon rotation is disabled</source>
        <translation>Tray icon rotation is disabled</translation>
    </message>
    <message>
        <source>The tray icon will not rotate when Ovra is changing screen colors. This feature is used to show when Ovra mini is changing colors and your screen is not calibrated</source>
        <translation>The tray icon will not rotate when Ovra is changing screen colors. This feature is used to show when Ovra mini is changing colors and your screen is not calibrated</translation>
    </message>
    <message>
        <source>Keyboard Hook enabled</source>
        <translation>Keyboard Hook enabled</translation>
    </message>
    <message>
        <source>Keyboard Hook enabled. You can now use system-wide shortcuts.</source>
        <translation>Keyboard Hook enabled. You can now use system-wide shortcuts.</translation>
    </message>
    <message>
        <source>Keyboard Hook disabled</source>
        <translation>Keyboard Hook disabled</translation>
    </message>
    <message>
        <source>Keyboard Hook disabled. Some shortcuts and features may not work as intended</source>
        <translation>Keyboard Hook disabled. Some shortcuts and features may not work as intended</translation>
    </message>
    <message>
        <source>Conflicting applications enabled</source>
        <translation>Conflicting applications enabled</translation>
    </message>
    <message>
        <source>Conflicting applications are enabled. You can now use other softwares which change the screen colors.</source>
        <translation>Conflicting applications are enabled. You can now use other softwares which change the screen colors.</translation>
    </message>
    <message>
        <source>Conflicting applications disabled</source>
        <translation>Conflicting applications disabled</translation>
    </message>
    <message>
        <source>Conflicting applications are disabled. In order to not cause flicker conflicting applications are disabled.</source>
        <translation>Conflicting applications are disabled. In order to not cause flicker conflicting applications are disabled.</translation>
    </message>
    <message>
        <source>Gamma fixer enabled</source>
        <translation>Gamma fixer enabled</translation>
    </message>
    <message>
        <source>Gamma fixer is enabled. If notice slight color changing every second disable the Gamma fixer again. Gamma fixer is used, because Windows decides to ignore Ovra mini changes from time to time.</source>
        <translation>Gamma fixer is enabled. If notice slight color changing every second disable the Gamma fixer again. Gamma fixer is used, because Windows decides to ignore Ovra mini changes from time to time.</translation>
    </message>
    <message>
        <source>Gamma fixer disabled</source>
        <translation>Gamma fixer disabled</translation>
    </message>
    <message>
        <source>Gamma fixer is disabled. If your screen suddenly becomes bright enable it again or click the Ovra mini icon several times. Both should force Ovra to change the screen colors.</source>
        <translation>Gamma fixer is disabled. If your screen suddenly becomes bright enable it again or click the Ovra mini icon several times. Both should force Ovra to change the screen colors.</translation>
    </message>
    <message>
        <source>Monitor</source>
        <translation>Monitor</translation>
    </message>
    <message>
        <source> disabled</source>
        <translation> disabled</translation>
    </message>
    <message>
        <source> enabled</source>
        <translation> enabled</translation>
    </message>
    <message>
        <source>Ovra will not apply color changes to Monitor</source>
        <translation>Ovra will not apply color changes to Monitor</translation>
    </message>
    <message>
        <source>Ovra will apply color changes to Monitor</source>
        <translation>Ovra will apply color changes to Monitor</translation>
    </message>
    <message>
        <source>Latitude changed</source>
        <translation>Latitude changed</translation>
    </message>
    <message>
        <source>Latitude changed to</source>
        <translation>Latitude changed to</translation>
    </message>
    <message>
        <source>Longitude changed</source>
        <translation>Longitude changed</translation>
    </message>
    <message>
        <source>Longitude changed to</source>
        <translation>Longitude changed to</translation>
    </message>
    <message>
        <source>Invalid value for temperature:</source>
        <translation>Invalid value for temperature:</translation>
    </message>
    <message>
        <source>Invalid temperature</source>
        <translation>Invalid temperature</translation>
    </message>
    <message>
        <source>is invalid value for Color temperature. Use number between 0 and 10000.</source>
        <translation>is invalid value for Color temperature. Use number between 0 and 10000.</translation>
    </message>
    <message>
        <source>Temperature changed</source>
        <translation>Temperature changed</translation>
    </message>
    <message>
        <source>Color temperature changed to</source>
        <translation>Color temperature changed to</translation>
    </message>
    <message>
        <source>Invalid value for brightness:</source>
        <translation>Invalid value for brightness:</translation>
    </message>
    <message>
        <source>Invalid brightness</source>
        <translation>Invalid brightness</translation>
    </message>
    <message>
        <source>is invalid value for Brightness. Use number between 10 and 100.</source>
        <translation>is invalid value for Brightness. Use number between 10 and 100.</translation>
    </message>
    <message>
        <source>Brightness changed</source>
        <translation>Brightness changed</translation>
    </message>
    <message>
        <source>Brightness changed to</source>
        <translation>Brightness changed to</translation>
    </message>
    <message>
        <source>Invalid value for night start time:</source>
        <translation>Invalid value for night start time:</translation>
    </message>
    <message>
        <source>Invalid Night start time</source>
        <translation>Invalid Night start time</translation>
    </message>
    <message>
        <source>is invalid value for Night start time. Use number between 0 and 24.</source>
        <translation>is invalid value for Night start time. Use number between 0 and 24.</translation>
    </message>
    <message>
        <source>Night start time changed</source>
        <translation>Night start time changed</translation>
    </message>
    <message>
        <source>Manual night start time changed to</source>
        <translation>Manual night start time changed to</translation>
    </message>
    <message>
        <source>Invalid value for night end time:</source>
        <translation>Invalid value for night end time:</translation>
    </message>
    <message>
        <source>Invalid Night end time</source>
        <translation>Invalid Night end time</translation>
    </message>
    <message>
        <source>is invalid value for Night end time. Use number between 0 and 24.</source>
        <translation>is invalid value for Night end time. Use number between 0 and 24.</translation>
    </message>
    <message>
        <source>Night end time changed</source>
        <translation>Night end time changed</translation>
    </message>
    <message>
        <source>Manual night end time changed to</source>
        <translation>Manual night end time changed to</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Location unknown</source>
        <translation>Location unknown</translation>
    </message>
    <message>
        <source>Day start time</source>
        <translation>Day start time</translation>
    </message>
    <message>
        <source>Day transition start time</source>
        <translation>Day transition start time</translation>
    </message>
    <message>
        <source>Day transition end time</source>
        <translation>Day transition end time</translation>
    </message>
    <message>
        <source>Day end time</source>
        <translation>Day end time</translation>
    </message>
    <message>
        <source>Night start time</source>
        <translation>Night start time</translation>
    </message>
    <message>
        <source>Night transition start time</source>
        <translation>Night transition start time</translation>
    </message>
    <message>
        <source>Night transition end time</source>
        <translation>Night transition end time</translation>
    </message>
    <message>
        <source>Night end time</source>
        <translation>Night end time</translation>
    </message>
    <message>
        <source>Bedtime</source>
        <translation>Bedtime</translation>
    </message>
    <message>
        <source>Bedtime transition start time</source>
        <translation>Bedtime transition start time</translation>
    </message>
    <message>
        <source>Bedtime transition end time</source>
        <translation>Bedtime transition end time</translation>
    </message>
    <message>
        <source>Bedtime end time</source>
        <translation>Bedtime end time</translation>
    </message>
    <message>
        <source>Wake time</source>
        <translation>Wake time</translation>
    </message>
    <message>
        <source>Wake time transition start time</source>
        <translation>Wake time transition start time</translation>
    </message>
    <message>
        <source>Wake time transition end time</source>
        <translation>Wake time transition end time</translation>
    </message>
    <message>
        <source>Wake time end time</source>
        <translation>Wake time end time</translation>
    </message>
    <message>
        <source>Day duration</source>
        <translation>Day duration</translation>
    </message>
    <message>
        <source>Day transition duration</source>
        <translation>Day transition duration</translation>
    </message>
    <message>
        <source>Night duration</source>
        <translation>Night duration</translation>
    </message>
    <message>
        <source>Night transition duration</source>
        <translation>Night transition duration</translation>
    </message>
    <message>
        <source>Sleep duration</source>
        <translation>Sleep duration</translation>
    </message>
    <message>
        <source>Sleep transition duration</source>
        <translation>Sleep transition duration</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Time zone</translation>
    </message>
    <message>
        <source>Custom Time zone offset</source>
        <translation>Custom Time zone offset</translation>
    </message>
    <message>
        <source>Sunrise time</source>
        <translation>Sunrise time</translation>
    </message>
    <message>
        <source>Sunset time</source>
        <translation>Sunset time</translation>
    </message>
    <message>
        <source>New moon offset</source>
        <translation>New moon offset</translation>
    </message>
    <message>
        <source>Full moon offset</source>
        <translation>Full moon offset</translation>
    </message>
    <message>
        <source>Current moon offset</source>
        <translation>Current moon offset</translation>
    </message>
    <message>
        <source>rest</source>
        <translation>rest</translation>
    </message>
    <message>
        <source>until</source>
        <translation>until</translation>
    </message>
    <message>
        <source>work</source>
        <translation>work</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Big rest incoming</source>
        <translation>Big rest incoming</translation>
    </message>
    <message>
        <source>Relaunch Ovra</source>
        <translation>Relaunch Ovra</translation>
    </message>
    <message>
        <source>You need to relaunch Ovra for changes to take effect.</source>
        <translation>You need to relaunch Ovra for changes to take effect.</translation>
    </message>
    <message>
        <source>Relaunch now</source>
        <translation>Relaunch now</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
</context>
<context>
    <name>TrayIcon</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>&amp;Automatic</source>
        <translation>&amp;Automatic</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>&amp;Paused</source>
        <translation>&amp;Paused</translation>
    </message>
    <message>
        <source>&amp;Change mode</source>
        <translation>&amp;Change mode</translation>
    </message>
    <message>
        <source>&amp;Health</source>
        <translation>&amp;Health</translation>
    </message>
    <message>
        <source>&amp;Sleep</source>
        <translation>&amp;Sleep</translation>
    </message>
    <message>
        <source>&amp;Reading</source>
        <translation>&amp;Reading</translation>
    </message>
    <message>
        <source>&amp;Programming</source>
        <translation>&amp;Programming</translation>
    </message>
    <message>
        <source>&amp;Biohacker</source>
        <translation>&amp;Biohacker</translation>
    </message>
    <message>
        <source>&amp;Sunglasses</source>
        <translation>&amp;Sunglasses</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dark</translation>
    </message>
    <message>
        <source>&amp;Movie</source>
        <translation>&amp;Movie</translation>
    </message>
    <message>
        <source>&amp;Overlay</source>
        <translation>&amp;Overlay</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Color pausers</source>
        <translation>Color pausers</translation>
    </message>
    <message>
        <source>Timer pausers</source>
        <translation>Timer pausers</translation>
    </message>
    <message>
        <source>Mouse pausers</source>
        <translation>Mouse pausers</translation>
    </message>
</context>
<context>
    <name>RestTimer</name>
    <message>
        <source>hour</source>
        <translation>hour</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sec</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutes</translation>
    </message>
    <message>
        <source>reminds you that a big rest will occur in</source>
        <translation>reminds you that a big rest will occur in</translation>
    </message>
    <message>
        <source>reminds you that a big rest will occur in 30 seconds</source>
        <translation>reminds you that a big rest will occur in 30 seconds</translation>
    </message>
</context>
<context>
    <name>SolarPosition</name>
    <message>
        <source>hour</source>
        <translation>hour</translation>
    </message>
    <message>
        <source>hours</source>
        <translation>hours</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sec</translation>
    </message>
</context>
<context>
    <name>ClockPosition</name>
    <message>
        <source>hour</source>
        <translation>hour</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>sec</translation>
    </message>
</context>
<context>
    <name>RestScreenLite</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Ovra</source>
        <translation>Ovra</translation>
    </message>
    <message>
        <source>Rest screen</source>
        <translation>Rest screen</translation>
    </message>
    <message>
        <source>Remaining</source>
        <translation>Remaining</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
</context>
<context>
    <name>TaskbarButton</name>
    <message>
        <source> until rest</source>
        <translation> until rest</translation>
    </message>
    <message>
        <source> until work</source>
        <translation> until work</translation>
    </message>
</context>
<context>
    <name>ExportSettings</name>
    <message>
        <source>Save File...</source>
        <translation>Save File...</translation>
    </message>
    <message>
        <source>Ovra Settings File (*.ovra_settings *.ovra)</source>
        <translation>Ovra Settings File (*.ovra_settings *.ovra)</translation>
    </message>
</context>
<context>
    <name>ImportSettings</name>
    <message>
        <source>Open File...</source>
        <translation>Open File...</translation>
    </message>
    <message>
        <source>Ovra Settings File (*.ovra_settings *.ovra)</source>
        <translation>Ovra Settings File (*.ovra_settings *.ovra)</translation>
    </message>
</context>
<context>
    <name>input_dialog</name>
    <message>
        <source>Enter your spell:</source>
        <translation>Enter your spell:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>message_box</name>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
