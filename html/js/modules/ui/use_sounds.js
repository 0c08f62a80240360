"use strict";

forms.checkbox(exports, {
  name: "use_sounds",
  element: "#use-sounds-checkbox",
  slot: "use_sounds_changed"
});
