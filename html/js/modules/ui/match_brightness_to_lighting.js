"use strict";

forms.checkbox(exports, {
  name: "match_brightness_to_lighting",
  element: "#checkbox-match-brightness-to-lighting",
  slot: "match_brightness_to_lighting_changed"
});
