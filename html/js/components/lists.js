// The six lists of the settings (one entry a line). They run the other way
// from values: the page sends a list whenever the user edits it, without
// waiting, so that quitting right after typing loses nothing. A list is sent
// only once it has arrived from the native side since load, so an empty box
// can never overwrite a stored list.
"use strict";

var LISTS = {
  color_pausers: {
    box: "#color-pausers-textarea", button: "#current-color-pauser-process", slot: "save_color_pausers"
  },
  timer_pausers: {
    box: "#timer-pausers-textarea", button: "#current-timer-pauser-process", slot: "save_timer_pausers"
  },
  mouse_pausers: {
    box: "#mouse-pausers-textarea", button: "#current-mouse-pauser-process", slot: "save_mouse_pausers"
  },
  color_triggers: {
    box: "#color-triggers-textarea", button: "#current-color-trigger-process", slot: "save_color_triggers",
    new_line: function (name) { return name + " = 6500 100"; }
  },
  websites_for_blocking: { box: "#websites-for-blocking-textarea", slot: "save_websites_for_blocking" },
  applications_for_blocking: {
    box: "#applications-for-blocking-textarea", slot: "save_applications_for_blocking"
  }
};
exports.LISTS = LISTS;

Object.keys(LISTS).forEach(function (name) {
  window[name + "_loaded"] = false;
});

function text_of(name) {
  return String($(LISTS[name].box).val() || "");
}

exports.send = function (name) {
  if (!window[name + "_loaded"]) {
    return false;
  }
  return native_call(LISTS[name].slot, text_of(name));
};

exports.receive = function (name, text) {
  $(LISTS[name].box).val(text || "");
  window[name + "_loaded"] = true;
  refresh_process_button(name);
};

function lines_of(text) {
  return text.split("\n").filter(function (line) {
    return $.trim(line).length > 0;
  });
}

function contains_process(name, process) {
  return process.length > 0 && text_of(name).indexOf(process) !== -1;
}

function refresh_process_button(name) {
  var list = LISTS[name];
  if (!list.button) {
    return;
  }
  var process = current_active_process_name;
  var $button = $(list.button);
  $button.find(".process-action").text(contains_process(name, process) ? REMOVE : ADD);
  $button.find(".process-name").text(process);
}

// Adds the process to the list, or takes every line that names it out.
exports.toggle_process = function (name) {
  var process = current_active_process_name;
  if (!process) {
    return;
  }
  var list = LISTS[name];
  var lines = lines_of(text_of(name));
  if (contains_process(name, process)) {
    lines = lines.filter(function (line) {
      return line.indexOf(process) === -1;
    });
  } else {
    lines.push(list.new_line ? list.new_line(process) : process);
  }
  $(list.box).val(lines.join("\n"));
  refresh_process_button(name);
  exports.send(name);
};

// The native side names the application in front; each list offers to add
// or remove it.
exports.set_current_active_process = function (process) {
  current_active_process_name = String(process || "");
  var shown = current_active_process_name.length > 0;
  Object.keys(LISTS).forEach(function (name) {
    if (LISTS[name].button) {
      $(LISTS[name].button).toggle(shown);
      refresh_process_button(name);
    }
  });
  if (shown !== current_process_shown) {
    current_process_shown = shown;
    if (load_finished) {
      refresh_size();
    }
  }
};

exports.refresh_buttons = function () {
  Object.keys(LISTS).forEach(refresh_process_button);
};

exports.setup = function () {
  Object.keys(LISTS).forEach(function (name) {
    var list = LISTS[name];
    $(list.box).on("input blur", function () {
      exports.send(name);
      refresh_process_button(name);
    });
    if (list.button) {
      $(list.button).hide().on("click", function () {
        exports.toggle_process(name);
      });
    }
  });
};
