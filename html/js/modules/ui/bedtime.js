"use strict";

forms.time_picker(exports, {
  name: "bedtime",
  element: "#bedtime",
  slot: "bedtime_changed",
  signal: "set_bedtime_value"
});
