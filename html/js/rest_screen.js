// The rest screen's page. The native side tells it the time left once a
// second (set_timer) and which way out to offer (set_normal_screen,
// set_strict_screen, set_continue_button); the page keeps its own clock and,
// on the Standard screen, a slow animation behind the time.
"use strict";

var rest_screen = {
  texts: {
    SKIP_REST: "Skip rest",
    NORMAL: "Normal",
    STRICT: "Strict",
    CONTINUE: "Continue",
    REST_MODE: "Rest mode",
    REST_MODE_MESSAGE: "You are in rest mode now. Edit the timer in the settings panel.",
    TIME_IS: "The time is"
  },
  // The last kind the native side asked for: "normal", "strict", "continue".
  kind: null,
  started: false,
  timer_shown: false,
  animation: null
};

function two_digits(value) {
  return (value < 10 ? "0" : "") + value;
}

function set_timer(seconds) {
  var total = Math.max(0, Math.floor(seconds));
  var text = two_digits(Math.floor(total / 60)) + ":" + two_digits(total % 60);
  var heading = document.querySelector(".timer h1");
  heading.textContent = text;
  if (!rest_screen.timer_shown) {
    rest_screen.timer_shown = true;
    heading.classList.add("shown");
  }
}

function show_kind(kind) {
  rest_screen.kind = kind;
  var texts = rest_screen.texts;
  var body = document.body;
  var button = document.querySelector(".skip-rest-btn");
  body.classList.toggle("normal", kind === "normal");
  body.classList.toggle("strict", kind === "strict");
  body.classList.toggle("continue", kind === "continue");
  button.querySelector(".skip-rest-text").textContent =
    kind === "continue" ? texts.CONTINUE : texts.SKIP_REST;
  if (kind !== "continue") {
    document.querySelector(".screen-type").textContent =
      kind === "strict" ? texts.STRICT : texts.NORMAL;
  }
}

function set_normal_screen() {
  show_kind("normal");
}

function set_strict_screen() {
  show_kind("strict");
}

function set_continue_button() {
  show_kind("continue");
}

function skip_rest() {
  native_call("skip_rest");
}

function set_background_image(address) {
  if (!address) {
    return;
  }
  var background = document.querySelector(".background");
  background.style.backgroundImage = "url(\"" + address + "\")";
  background.classList.add("picture");
}

// h:mm:ss AM, the hour not padded, 0 read as 12.
function clock_text(now) {
  var hours = now.getHours();
  var suffix = hours < 12 ? "AM" : "PM";
  var shown = hours % 12 === 0 ? 12 : hours % 12;
  return shown + ":" + two_digits(now.getMinutes()) + ":" + two_digits(now.getSeconds()) +
    " " + suffix;
}

function update_clock() {
  document.querySelector(".clock-active").textContent = clock_text(new Date());
}

function translate() {
  load_texts(rest_screen.texts).then(function (texts) {
    rest_screen.texts = texts;
    apply_texts(texts);
    if (rest_screen.kind) {
      show_kind(rest_screen.kind);
    }
  });
}

function start_page(animated) {
  if (rest_screen.started) {
    return;
  }
  rest_screen.started = true;
  update_clock();
  setInterval(update_clock, 1000);
  if (animated) {
    start_constellation();
  }
}

function rest_screen_simple_load_finished() {
  start_page(false);
}

function rest_screen_standard_load_finished() {
  start_page(true);
}

function start_constellation() {
  if (!rest_screen.animation) {
    rest_screen.animation = new Constellation(document.getElementById("effect-canvas"));
    rest_screen.animation.start();
  }
}

// The animation stops with the screen.
window.addEventListener("pagehide", function () {
  if (rest_screen.animation) {
    rest_screen.animation.stop();
  }
});

window.addEventListener("load", function () {
  connect_native_object(function (object) {
    translate();
    object.get_background_image(set_background_image);
  });
});
