"use strict";

forms.number_box(exports, {
  name: "work_time",
  element: "#workTimeBox",
  slot: "work_time_changed",
  signal: "set_work_time_value",
  unit: function () { return MIN; },
  min: MIN_WORK_TIME,
  max: MAX_WORK_TIME
});
