"use strict";

forms.number_box(exports, {
  name: "rest_time",
  element: "#restTimeBox",
  slot: "rest_time_changed",
  signal: "set_rest_time_value",
  unit: function () { return SEC; },
  min: MIN_REST_TIME,
  max: MAX_REST_TIME
});
