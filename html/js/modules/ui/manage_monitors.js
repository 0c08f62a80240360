"use strict";

// The monitors in use. A checked box is a monitor the tint reaches; the
// native side names the ones it leaves alone.
var MONITORS = [1, 2, 3, 4];

exports.kind = "checkbox";
MONITORS.forEach(function (n) {
  exports["ignore_monitor_" + n] = false;
});

function box(n) {
  return $("#checkbox-manage-monitor-" + n);
}

exports.set_screen_count = function (count) {
  $(".manage-monitor, .monitors label").hide();
  MONITORS.forEach(function (n) {
    exports["ignore_monitor_" + n] = false;
    box(n).prop("checked", true);
  });
  $(".monitors").toggleClass("small", count > 3);
  for (var n = 1; n <= Math.min(count, MONITORS.length); ++n) {
    $(".manage-monitor-" + n + ", .monitor-tab-" + n).show();
  }
  refresh_size();
};

exports.ignore_monitor = function (n) {
  if (MONITORS.indexOf(n) === -1 || exports["ignore_monitor_" + n]) {
    return;
  }
  exports["ignore_monitor_" + n] = true;
  box(n).prop("checked", false);
};

exports.setup = function () {
  MONITORS.forEach(function (n) {
    box(n).on("change", function () {
      exports["ignore_monitor_" + n] = !this.checked;
      forms.report("ignore_monitor_changed", n, !this.checked);
    });
  });
};
