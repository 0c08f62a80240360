"use strict";

forms.checkbox(exports, {
  name: "use_manual_location",
  element: "#use-manual-location-checkbox",
  slot: "use_manual_location_changed"
});
