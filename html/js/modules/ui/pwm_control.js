"use strict";

// Hardware dimming: a frequency, its upper limit, and two switches.
forms.slider(exports, {
  name: "pwm_frequency",
  element: "#pwm-frequency-slider",
  slot: "pwm_frequency_changed",
  signals: ["set_pwm_frequency_slider_value", "set_pwm_frequency_slider_value_ui"],
  min: 50,
  max: 2000,
  value: 50,
  unit: " Hz"
});
var setup_slider = exports.setup;

var maximum = {};
forms.number_box(maximum, {
  name: "pwm_max_frequency",
  element: "#pwm-control-max-frequency",
  slot: "pwm_max_frequency_changed",
  signal: "set_pwm_max_frequency_value",
  unit: function () { return "HZ"; },
  min: 500,
  max: 10000
});
exports.set_pwm_max_frequency_value = maximum.set_pwm_max_frequency_value;

var continuously = {};
forms.checkbox(continuously, {
  name: "pwm_control_update_continuously",
  element: "#checkbox-pwm-control-update-continuously",
  slot: "pwm_control_update_continuously_changed"
});
exports.set_pwm_control_update_continuously = continuously.set_pwm_control_update_continuously;

var use = {};
forms.checkbox(use, {
  name: "use_pwm_control",
  element: "#checkbox-use-pwm-control",
  slot: "use_pwm_control_changed"
});
exports.set_use_pwm_control = use.set_use_pwm_control;

exports.redraw = maximum.redraw;
exports.setup = function () {
  setup_slider();
  maximum.setup();
  continuously.setup();
  use.setup();
};
