"use strict";

forms.checkbox(exports, {
  name: "use_gamma_fixer",
  element: "#checkbox-use-gamma-fixer",
  slot: "use_gamma_fixer_changed"
});
