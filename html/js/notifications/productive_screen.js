// The productive widget: the clock of the period, one button, and a handle
// to move it. The native side writes the time and the state; a drag on the
// handle reports where the widget should stand, and the native side moves
// the window there.
"use strict";

var productive = {
  texts: { START_WORKING: "Start working", HAVE_A_BREAK: "Have a break" },
  resting: false,
  translated: false
};

function set_remaining_work(text) {
  document.querySelector(".timer").textContent = String(text).trim();
}

function refresh_state() {
  document.body.classList.toggle("inBreak", productive.resting);
  document.getElementById("button").textContent =
    productive.resting ? productive.texts.START_WORKING : productive.texts.HAVE_A_BREAK;
  // The button's words differ in width: the window follows.
  report_size(document.querySelector(".productive-container"));
}

function set_rest_state() {
  productive.resting = true;
  refresh_state();
}

function set_work_state() {
  productive.resting = false;
  refresh_state();
}

function translate() {
  load_texts(productive.texts).then(function (texts) {
    productive.texts = texts;
    refresh_state();
  });
}

// The handle: where in the window it was taken, and the pointer on the
// screen since; one report a frame at most.
function start_drag(event) {
  if (event.button !== 0) {
    return;
  }
  event.preventDefault();
  var grip = { x: event.clientX, y: event.clientY };
  var pending = null;
  function send() {
    if (pending) {
      native_call("move_window", pending.x, pending.y);
      pending = null;
    }
  }
  function move(e) {
    var first = pending === null;
    pending = { x: Math.round(e.screenX - grip.x), y: Math.round(e.screenY - grip.y) };
    if (first) {
      requestAnimationFrame(send);
    }
  }
  function end() {
    send();
    window.removeEventListener("mousemove", move);
    window.removeEventListener("mouseup", end);
  }
  window.addEventListener("mousemove", move);
  window.addEventListener("mouseup", end);
}

window.addEventListener("load", function () {
  document.querySelector(".drag-handle").addEventListener("mousedown", start_drag);
  connect_native_object(function () {
    translate();
  });
});
