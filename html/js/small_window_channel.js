// The road of a small window's page (rest screens, prompts, notifications)
// to its native object: a QWebChannel over a WebSocket that the program
// serves on the same host as the page, at ws://<host>/<token>/channel/<window>.
// The page calls connect_native_object(ready) once; `ready` runs with the
// object when the channel stands. Without a channel the page still works
// with its own first texts, and calls to native code go nowhere.
"use strict";

var native_object_ready = false;

function small_window_channel_address(location_object) {
  var query = new URLSearchParams(location_object.search);
  var segments = location_object.pathname.split("/").filter(function (segment) {
    return segment.length > 0;
  });
  var token = segments.length > 1 ? segments[0] : "";
  return "ws://" + location_object.host + "/" + encodeURIComponent(token) +
    "/channel/" + encodeURIComponent(query.get("window") || "");
}

function connect_native_object(ready) {
  if (location.protocol !== "http:" || typeof QWebChannel === "undefined") {
    console.log("no native side for this page");
    return;
  }
  var socket = new WebSocket(small_window_channel_address(location));
  socket.onopen = function () {
    new QWebChannel(socket, function (channel) {
      window.native_object = channel.objects.native_object;
      native_object_ready = true;
      ready(window.native_object);
    });
  };
  socket.onerror = function () {
    console.log("the native side cannot be reached");
  };
  socket.onclose = function () {
    native_object_ready = false;
  };
}

// Calls a native slot when the channel stands; false when it does not.
function native_call(name) {
  if (!native_object_ready || typeof native_object[name] !== "function") {
    return false;
  }
  native_object[name].apply(native_object, Array.prototype.slice.call(arguments, 1));
  return true;
}

// The page's texts: `defaults` maps each key to its English text; the
// promise gives the same keys with the texts of the chosen language.
function load_texts(defaults) {
  var texts = Object.assign({}, defaults);
  if (!native_object_ready) {
    return Promise.resolve(texts);
  }
  return Promise.all(Object.keys(defaults).map(function (key) {
    return new Promise(function (resolve) {
      native_object.GET_STRING(key, function (text) {
        if (text && text !== key) {
          texts[key] = text;
        }
        resolve();
      });
    });
  })).then(function () {
    return texts;
  });
}

// Writes each [data-tr] element's text from `texts`.
function apply_texts(texts, root) {
  (root || document).querySelectorAll("[data-tr]").forEach(function (element) {
    var key = element.getAttribute("data-tr");
    if (texts[key]) {
      element.textContent = texts[key];
    }
  });
}

// Reports the size of the page's box, so that the window takes it.
function report_size(element) {
  if (!element) {
    return;
  }
  var box = element.getBoundingClientRect();
  native_call("setScreenSize", Math.ceil(box.width), Math.ceil(box.height));
}
