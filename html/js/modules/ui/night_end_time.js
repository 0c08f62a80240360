"use strict";

forms.time_picker(exports, {
  name: "night_end_time",
  element: "#night-end-time",
  slot: "night_end_time_changed",
  signal: "set_night_end_time_value"
});
