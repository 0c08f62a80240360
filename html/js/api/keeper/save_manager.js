// The page's own small store, for the page alone in a browser: what the user
// changes there survives a reload. None of it runs with a program behind
// the page, which holds every setting itself.
"use strict";

var PREFIX = "ovra.";

function read(key, fallback) {
  try {
    var text = window.localStorage.getItem(PREFIX + key);
    return text === null ? fallback : JSON.parse(text);
  } catch (error) {
    return fallback;
  }
}

function write(key, value) {
  try {
    window.localStorage.setItem(PREFIX + key, JSON.stringify(value));
  } catch (error) {
    console.log("save_manager: " + error);
  }
}

exports.remember = function (slot, args) {
  var entry = save_keys.REPORTS[slot];
  if (entry) {
    write(entry[0], args[0]);
  }
};

exports.get_unused_pages = function () {
  return read(save_keys.UNUSED_PAGES, defines.DEFAULT_UNUSED_PAGES.slice());
};

exports.set_page_unused = function (name, unused) {
  var list = exports.get_unused_pages().filter(function (entry) {
    return entry.toUpperCase() !== name.toUpperCase();
  });
  if (unused) {
    list.push(name);
  }
  write(save_keys.UNUSED_PAGES, list);
};

// Shows what was stored (or the defaults) through the same handlers the
// native side's signals reach.
exports.init = function () {
  Object.keys(save_keys.REPORTS).forEach(function (slot) {
    var entry = save_keys.REPORTS[slot];
    var value = read(entry[0], defines.DEFAULTS[entry[0]]);
    if (value === undefined) {
      return;
    }
    [].concat(entry[1]).forEach(function (signal) {
      signal_handler(signal, SIGNAL_TABLE[signal])(value);
    });
  });
  features.set_active_features(exports.get_unused_pages());
};
