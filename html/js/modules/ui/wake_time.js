"use strict";

forms.time_picker(exports, {
  name: "wake_time",
  element: "#wake-time",
  slot: "wake_time_changed",
  signal: "set_wake_time_value"
});
