// The prompt before a rest. The native side writes the seconds left once a
// second; the words of this page are its own.
"use strict";

function set_remaining_work(seconds) {
  document.querySelector(".remainingWork").textContent = "Break is coming in " + seconds;
}

function postpone_clicked() {
  native_call("postpone_clicked");
}

// The window goes once the card has slid out.
function close_postpone() {
  document.querySelector(".notification").classList.add("closed");
  setTimeout(function () {
    native_call("close_postpone");
  }, 1000);
}

window.addEventListener("load", function () {
  connect_native_object(function () {
    report_size(document.querySelector(".notification"));
  });
});
