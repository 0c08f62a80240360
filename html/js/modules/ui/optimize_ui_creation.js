"use strict";

forms.checkbox(exports, {
  name: "optimize_ui_creation",
  element: "#checkbox-optimize-ui-creation",
  slot: "optimize_ui_creation_changed"
});
