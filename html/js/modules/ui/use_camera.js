"use strict";

forms.switch_buttons(exports, {
  name: "use_camera",
  on: "#artificial-intelligence-enable-camera-button",
  off: "#artificial-intelligence-disable-camera-button",
  slot: "use_camera_changed"
});
