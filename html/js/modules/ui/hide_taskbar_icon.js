"use strict";

forms.checkbox(exports, {
  name: "hide_taskbar_icon",
  element: "#checkbox-hide-taskbar-icon",
  slot: "hide_taskbar_icon_changed"
});
