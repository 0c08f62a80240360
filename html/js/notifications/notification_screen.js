// The notification window: asks its native side which exercises to run and
// runs that chain. The window goes with its last card.
"use strict";

var notification_screen = { started: false, type: null, ready: false };

function setScreenSize() {
  report_size(document.getElementById("snarl-wrapper"));
}

function deleteWindow() {
  native_call("deleteWindow");
}

function start_chain() {
  if (notification_screen.started || !notification_screen.ready || !notification_screen.type) {
    return;
  }
  notification_screen.started = true;
  var starts = {
    eye_exercises: start_eye_exercise0,
    neck_exercises: start_neck_exercise0,
    back_exercises: start_back_exercise0
  };
  if (starts[notification_screen.type]) {
    starts[notification_screen.type]();
  }
}

document.addEventListener("notifier-ready", function () {
  notification_screen.ready = true;
  start_chain();
});

document.addEventListener("notification-removed", deleteWindow);

window.addEventListener("load", function () {
  connect_native_object(function (object) {
    object.get_notification_type(function (type) {
      notification_screen.type = type;
      start_chain();
    });
  });
});
