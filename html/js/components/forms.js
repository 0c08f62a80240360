// The forms every control module takes. A module reports what the user does
// through its slot on the native object, once per action, and follows what
// the native side sends without reporting it back: over an asynchronous
// channel an echo would never settle. What the page shows around a control
// (labels, folding sections, dependent ranges) follows either way.
"use strict";

// Reports not yet answered, by slot, and what the program sent meanwhile,
// by slot and element. A control moved quickly (a drag, a held arrow key)
// sends its next report before the answer to the last one is back, and the
// program's value for that last one would move the control back under the
// user's hand. So while its reports are on their way a control keeps what
// the user set, and takes the program's last value once all are answered.
var in_flight = {};
var held_back = {};

function answered(slot) {
  in_flight[slot] -= 1;
  if (in_flight[slot] > 0 || !held_back[slot]) {
    return;
  }
  var waiting = held_back[slot];
  delete held_back[slot];
  Object.keys(waiting).forEach(function (element) {
    waiting[element]();
  });
}

function report(slot) {
  var args = Array.prototype.slice.call(arguments, 1);
  var sent = native_call.apply(null, [slot].concat(args, [function () {
    answered(slot);
  }]));
  if (sent) {
    in_flight[slot] = (in_flight[slot] || 0) + 1;
  } else if (!has_native_side()) {
    save_manager.remember(slot, args);
  }
}
exports.report = report;

// Shows what the program sent for the control `element` now, or, while the
// user's reports through `slot` are on their way, once they are answered.
function from_program(slot, element, show) {
  if (in_flight[slot] > 0) {
    held_back[slot] = held_back[slot] || {};
    held_back[slot][element] = show;
    return;
  }
  show();
}
exports.from_program = from_program;

function after_change(options, value, from_native) {
  if (options.follow) {
    options.follow(value, from_native);
  }
  folds.refresh();
}

// A checkbox bound to a boolean setting. options: name, element, slot, and
// optionally setter (the signal's name), follow(value, from_native) and
// extra() for further arguments of the report.
exports.checkbox = function (module, options) {
  var name = options.name;
  module.kind = "checkbox";
  module[name] = false;
  module[name + "_changed"] = function (value) {
    report.apply(null, [options.slot, value].concat(options.extra ? options.extra() : []));
  };
  module[options.setter || "set_" + name] = function (use) {
    use = !!use;
    if (use === module[name]) {
      return;
    }
    module[name] = use;
    $(options.element).prop("checked", use);
    after_change(options, use, true);
  };
  module.setup = module["setup_" + name + "_checkbox"] = function () {
    $(options.element).on("change", function () {
      module[name] = this.checked;
      after_change(options, this.checked, false);
      module[name + "_changed"](this.checked);
    });
  };
};

// A slider. options: name, element, slot, min, max, step, value, signals (the
// names of the signals that move it), per_monitor, and optionally
// to_native/from_native (a different scale than the setting's) and unit.
exports.slider = function (module, options) {
  var to_native = options.to_native || function (value) { return value; };
  var from_native = options.from_native || function (value) { return value; };
  module.kind = "slider";
  module.value = options.value;

  function show(value) {
    module.value = value;
    $(options.element).slider("value", value);
    $(options.element + "-value").text(value + (options.unit || ""));
  }
  module.show = show;

  (options.signals || ["set_" + options.name + "_slider_value"]).forEach(function (signal) {
    module[signal] = function (native_value) {
      from_program(options.slot, options.element, function () {
        show(from_native(native_value));
      });
    };
  });

  module.set_range = function (min, max) {
    $(options.element).slider("option", { min: min, max: max });
    show(Math.min(Math.max(module.value, min), max));
  };

  module.setup = module["setup_" + options.name + "_slider"] = function () {
    $(options.element).slider({
      range: "min",
      min: options.min,
      max: options.max,
      step: options.step || 1,
      value: options.value,
      slide: function (event, ui) {
        if (options.refuse && options.refuse(ui.value)) {
          return false;
        }
        module.value = ui.value;
        $(options.element + "-value").text(ui.value + (options.unit || ""));
        var args = [options.slot, to_native(ui.value)];
        if (options.per_monitor) {
          args.push(monitors.get_current_active_monitor());
        }
        report.apply(null, args);
        if (options.follow) {
          options.follow(ui.value);
        }
      }
    });
    $(options.element + "-value").text(options.value + (options.unit || ""));
  };
};

// A dropdown. options: name, element, slot, signal, and optionally signal_ui
// (moves only), echo (the plain signal reports back with force), text
// (values are strings) and follow(value).
exports.dropdown = function (module, options) {
  var convert = options.text ? String : function (value) { return parseInt(value, 10); };
  module.kind = "dropdown";

  function select(value) {
    var $select = $(options.element);
    $select.val(String(value));
    if ($select.data("ui-selectmenu")) {
      $select.selectmenu("refresh");
    }
    if (options.follow) {
      options.follow(convert(value), true);
    }
  }
  module.select = select;

  module[options.signal] = function (value) {
    select(value);
    if (options.echo) {
      report(options.echo, convert(value), true);
    }
  };
  if (options.signal_ui) {
    module[options.signal_ui] = select;
  }

  module.setup = module["setup_" + options.name + "_dropdown"] = function () {
    $(options.element).selectmenu({
      width: null,
      change: function (event, data) {
        var value = convert(data.item.value);
        if (options.follow) {
          options.follow(value, false);
        }
        if (options.echo) {
          report(options.echo, value, false);
        } else {
          report(options.slot, value);
        }
      }
    });
  };
};

// A number box that shows its unit while it is not being edited. options: name,
// element, slot, signal, unit (a function, so that a translated word is read
// when drawn), min, max, and float for decimal values.
exports.number_box = function (module, options) {
  var parse = options.float ? parseFloat : function (text) { return parseInt(text, 10); };
  module.kind = "number_box";
  module.value = null;

  function unit_text() {
    return options.unit ? " " + options.unit() : "";
  }

  function draw(value) {
    module.value = value;
    var text = value === null || value === "" ? "" : value + unit_text();
    $("*[id|=" + options.element.slice(1) + "]").val(text);
  }
  module.redraw = function () {
    if (document.activeElement !== $(options.element)[0]) {
      draw(module.value);
    }
  };

  module[options.signal] = function (value) {
    draw(options.float ? String(value) : parse(value));
  };

  function clamp(value) {
    if (options.min !== undefined && value < options.min) {
      return options.min;
    }
    if (options.max !== undefined && value > options.max) {
      return options.max;
    }
    return value;
  }
  module.clamp = clamp;

  module.setup = function () {
    var $box = $(options.element);
    $box.on("focusin", function () {
      $box.val("");
    });
    $box.on("keydown", function (event) {
      if (event.keyCode === 13) {
        $box.blur();
      }
    });
    $box.on("focusout", function () {
      var typed = parse($box.val());
      if (isNaN(typed)) {
        draw(module.value);
        return;
      }
      typed = clamp(typed);
      var changed = String(typed) !== String(module.value);
      draw(typed);
      if (changed) {
        report(options.slot, typed);
      }
    });
    draw(options.value === undefined ? null : options.value);
  };
};

// A time of day. options: name, element, slot, signal.
exports.time_picker = function (module, options) {
  module.kind = "time_picker";
  function two_digits(number) {
    return ("0" + number).slice(-2);
  }
  module[options.signal] = function (hours, minutes) {
    $(options.element).timepicker("setTime", two_digits(hours) + ":" + two_digits(minutes));
  };
  module.setup = function () {
    $(options.element).timepicker({ timeFormat: "H:i", step: 15, disableTextInput: false })
      .on("change", function () {
        var time = $(options.element).timepicker("getTime");
        if (time) {
          report(options.slot, time.getHours(), time.getMinutes());
        }
      });
  };
};

// Two buttons that switch a feature on and off and show which is in force.
// options: name, on, off (selectors), slot, setter.
exports.switch_buttons = function (module, options) {
  var name = options.name;
  module.kind = "buttons";
  module[name] = false;
  function show(use) {
    module[name] = use;
    $(options.on).toggleClass("active", use);
    $(options.off).toggleClass("active", !use);
  }
  module[options.setter || "set_" + name] = function (use) {
    show(!!use);
  };
  module.setup = function () {
    $(options.on).on("click", function () {
      show(true);
      report(options.slot, true);
    });
    $(options.off).on("click", function () {
      show(false);
      report(options.slot, false);
    });
    show(false);
  };
};
