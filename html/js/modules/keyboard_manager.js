// Keys the page itself answers. Escape belongs to the window host, which
// closes the window without asking the page.
"use strict";

var MENU_STEP = 50;
var bindings = [];

// "Ctrl+Alt+I": every modifier must be exactly as wanted, the key compared
// by its lower-cased name.
function parse_combination(combination) {
  var wanted = { ctrl: false, alt: false, shift: false, meta: false, key: "" };
  combination.toLowerCase().split("+").forEach(function (part) {
    if (part in wanted && part !== "key") {
      wanted[part] = true;
    } else {
      wanted.key = part;
    }
  });
  return wanted;
}

function matches(wanted, event) {
  return event.ctrlKey === wanted.ctrl && event.altKey === wanted.alt &&
    event.shiftKey === wanted.shift && event.metaKey === wanted.meta &&
    String(event.key).toLowerCase() === wanted.key;
}

exports.add = function (combination, callback) {
  bindings.push({ wanted: parse_combination(combination), callback: callback });
};

function on_keydown(event) {
  for (var i = 0; i < bindings.length; ++i) {
    if (matches(bindings[i].wanted, event)) {
      event.preventDefault();
      event.stopPropagation();
      bindings[i].callback(event);
      return;
    }
  }
}

// Up and Down move the advanced menu while it is in view and no field has
// the keys.
function scroll_menu(event) {
  var holder = document.getElementById("advanced-settings-menu-holder");
  if (!holder || !$(holder).is(":visible") || $(event.target).is("input[type='text'], textarea")) {
    return;
  }
  if (event.keyCode === 38) {
    holder.scrollTop = Math.max(holder.scrollTop - MENU_STEP, 0);
    event.preventDefault();
  } else if (event.keyCode === 40) {
    holder.scrollTop = Math.min(holder.scrollTop + MENU_STEP, holder.scrollHeight - holder.clientHeight);
    event.preventDefault();
  }
}

exports.bind_scroll = function () {
  $(window).on("keydown", scroll_menu);
};

exports.start = function () {
  exports.add("Ctrl+Alt+I", function () { native_call("start_web_view_debugger"); });
  exports.add("Ctrl+Alt+O", function () { native_call("start_debug_console"); });
  document.addEventListener("keydown", on_keydown, true);
};
