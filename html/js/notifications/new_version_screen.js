// The prompt of a new version, with its install button.
"use strict";

function setNewVersion(version) {
  document.querySelector(".remainingWork").textContent = "New version " + version + " available";
  report_size(document.querySelector(".notification"));
}

function install_clicked() {
  native_call("installClicked");
  closeNotification();
}

// The window goes once the card has slid out.
function closeNotification() {
  document.querySelector(".notification").classList.add("closed");
  setTimeout(function () {
    native_call("closeNotification");
  }, 1000);
}

window.addEventListener("load", function () {
  connect_native_object(function () {
    report_size(document.querySelector(".notification"));
  });
});
