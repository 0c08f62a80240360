"use strict";

forms.checkbox(exports, {
  name: "use_software_cursor",
  element: "#checkbox-use-software-cursor",
  slot: "use_software_cursor_changed"
});
