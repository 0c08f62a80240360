"use strict";

// The wider brightness range. Switched on by a click it starts at 10; sent
// on by the native side it starts at 5, while a drag below 10 is still
// refused: the two roads differ on purpose.
forms.checkbox(exports, {
  name: "brightness_extended_values",
  element: "#checkbox-brightness-extended-values",
  slot: "brightness_extended_values_changed",
  follow: function (extended, from_native) {
    var min = extended ? (from_native ? 5 : 10) : 20;
    var max = extended ? 150 : 100;
    day_brightness.set_range(min, max);
    night_brightness.set_range(min, max);
  }
});
