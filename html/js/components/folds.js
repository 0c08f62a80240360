// Sections that open with a checkbox: an element `.fold` with
// data-fold="<checkbox id>" shows while the box is checked (or, with
// data-fold-when="off", while it is not). An element with
// data-enable="<checkbox id>" stays in place and is usable only while the
// box is checked.
"use strict";

exports.refresh = function () {
  var changed = false;
  $(".fold[data-fold]").each(function () {
    var open = $("#" + this.getAttribute("data-fold")).prop("checked") === true;
    if (this.getAttribute("data-fold-when") === "off") {
      open = !open;
    }
    var was_open = !this.classList.contains("folded");
    if (open !== was_open) {
      this.classList.toggle("folded", !open);
      changed = true;
    }
  });
  $("[data-enable]").each(function () {
    var enabled = $("#" + this.getAttribute("data-enable")).prop("checked") === true;
    this.classList.toggle("switched-off", !enabled);
  });
  if (changed && load_finished) {
    refresh_size();
  }
  return changed;
};
