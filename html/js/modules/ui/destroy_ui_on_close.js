"use strict";

forms.checkbox(exports, {
  name: "destroy_ui_on_close",
  element: "#checkbox-destroy-ui-on-close",
  slot: "destroy_ui_on_close_changed"
});
