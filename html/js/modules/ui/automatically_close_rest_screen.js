"use strict";

forms.checkbox(exports, {
  name: "automatically_close_rest_screen",
  element: "#auto-close-rest-screen-checkbox",
  slot: "automatically_close_rest_screen_changed",
  setter: "set_automatically_close_rest_screen_value"
});
