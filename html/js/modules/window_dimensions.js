// The page decides the window's size: the size of its container, plus a
// margin for a drawn shadow where the platform needs one. Linux draws none,
// so the first size the page reports, before it knows its platform, is
// already right here.
"use strict";

exports.SHADOW_MARGIN = 25;
exports.use_shadow_margin = false;

function margin() {
  return exports.use_shadow_margin ? exports.SHADOW_MARGIN : 0;
}

exports.get_window_width = function () {
  return Math.ceil($(".ovra-container")[0].getBoundingClientRect().width) + margin();
};

exports.get_window_height = function () {
  return Math.ceil($(".ovra-container")[0].getBoundingClientRect().height) + margin();
};
