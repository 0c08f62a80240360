// The blue light scale: per cent of 6500 K, so 1 step is 65 K.
"use strict";

var KELVIN_PER_STEP = 65;

exports.from_temperature = function (kelvin) {
  return Math.round(kelvin / KELVIN_PER_STEP);
};

exports.to_temperature = function (percent) {
  return Math.round(percent * KELVIN_PER_STEP);
};
