"use strict";

forms.checkbox(exports, {
  name: "use_blink_detection",
  element: "#checkbox-use-blink-detection",
  slot: "use_blink_detection_changed"
});
