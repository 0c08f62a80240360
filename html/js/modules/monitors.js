// Which monitor the per-monitor controls edit. Without per-monitor settings
// every control edits the shared values, monitor 0.
"use strict";

exports.use_per_monitor_settings = false;
exports.current_active_monitor = 1;

exports.get_current_active_monitor = function () {
  return exports.use_per_monitor_settings ? exports.current_active_monitor : 0;
};

exports.set_current_active_monitor = function (monitor) {
  exports.current_active_monitor = monitor;
  forms.report("current_active_monitor_changed", exports.get_current_active_monitor());
};

exports.set_use_per_monitor_settings = function (use) {
  if (use !== exports.use_per_monitor_settings) {
    exports.use_per_monitor_settings = use;
    $(".monitors").css("display", use ? "flex" : "none");
    forms.report("current_active_monitor_changed", exports.get_current_active_monitor());
  }
  refresh_size();
};
