// Date pickers for a blocking schedule, for a page that offers one.
"use strict";

exports.setup_date_pickers = function () {
  if (typeof rome === "undefined") {
    return;
  }
  var start = document.getElementById("blockStartWebsites");
  var end = document.getElementById("blockEndWebsites");
  rome(start, { time: true, dateValidator: rome.val.beforeEq(end) });
  if (end) {
    rome(end, { time: true, dateValidator: rome.val.afterEq(start) });
  }
};
