"use strict";

forms.checkbox(exports, {
  name: "use_smart_inversion",
  element: "#checkbox-use-smart-inversion",
  slot: "use_smart_inversion_changed"
});
