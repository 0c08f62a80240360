"use strict";

forms.time_picker(exports, {
  name: "night_start_time",
  element: "#night-start-time",
  slot: "night_start_time_changed",
  signal: "set_night_start_time_value"
});
