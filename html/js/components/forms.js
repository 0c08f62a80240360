// The forms every control module takes. A module reports what the user does
// through its slot on the native object, once per action, and follows what
// the native side sends without reporting it back: over an asynchronous
// channel an echo would never settle. What the page shows around a control
// (labels, folding sections, dependent ranges) follows either way.
"use strict";

function report(slot) {
  var args = Array.prototype.slice.call(arguments, 1);
  native_call.apply(null, [slot].concat(args));
  if (!has_native_side()) {
    save_manager.remember(slot, args);
  }
}
exports.report = report;

function after_change(spec, value, from_native) {
  if (spec.follow) {
    spec.follow(value, from_native);
  }
  folds.refresh();
}

// A checkbox bound to a boolean setting. spec: name, element, slot, and
// optionally setter (the signal's name), follow(value, from_native) and
// extra() for further arguments of the report.
exports.checkbox = function (module, spec) {
  var name = spec.name;
  module.kind = "checkbox";
  module[name] = false;
  module[name + "_changed"] = function (value) {
    report.apply(null, [spec.slot, value].concat(spec.extra ? spec.extra() : []));
  };
  module[spec.setter || "set_" + name] = function (use) {
    use = !!use;
    if (use === module[name]) {
      return;
    }
    module[name] = use;
    $(spec.element).prop("checked", use);
    after_change(spec, use, true);
  };
  module.setup = module["setup_" + name + "_checkbox"] = function () {
    $(spec.element).on("change", function () {
      module[name] = this.checked;
      after_change(spec, this.checked, false);
      module[name + "_changed"](this.checked);
    });
  };
};

// A slider. spec: name, element, slot, min, max, step, value, signals (the
// names of the signals that move it), per_monitor, and optionally
// to_native/from_native (a different scale than the setting's) and unit.
exports.slider = function (module, spec) {
  var to_native = spec.to_native || function (value) { return value; };
  var from_native = spec.from_native || function (value) { return value; };
  module.kind = "slider";
  module.value = spec.value;

  function show(value) {
    module.value = value;
    $(spec.element).slider("value", value);
    $(spec.element + "-value").text(value + (spec.unit || ""));
  }
  module.show = show;

  (spec.signals || ["set_" + spec.name + "_slider_value"]).forEach(function (signal) {
    module[signal] = function (native_value) {
      show(from_native(native_value));
    };
  });

  module.set_range = function (min, max) {
    $(spec.element).slider("option", { min: min, max: max });
    show(Math.min(Math.max(module.value, min), max));
  };

  module.setup = module["setup_" + spec.name + "_slider"] = function () {
    $(spec.element).slider({
      range: "min",
      min: spec.min,
      max: spec.max,
      step: spec.step || 1,
      value: spec.value,
      slide: function (event, ui) {
        if (spec.refuse && spec.refuse(ui.value)) {
          return false;
        }
        module.value = ui.value;
        $(spec.element + "-value").text(ui.value + (spec.unit || ""));
        var args = [spec.slot, to_native(ui.value)];
        if (spec.per_monitor) {
          args.push(monitors.get_current_active_monitor());
        }
        report.apply(null, args);
        if (spec.follow) {
          spec.follow(ui.value);
        }
      }
    });
    $(spec.element + "-value").text(spec.value + (spec.unit || ""));
  };
};

// A dropdown. spec: name, element, slot, signal, and optionally signal_ui
// (moves only), echo (the plain signal reports back with force), text
// (values are strings) and follow(value).
exports.dropdown = function (module, spec) {
  var convert = spec.text ? String : function (value) { return parseInt(value, 10); };
  module.kind = "dropdown";

  function select(value) {
    var $select = $(spec.element);
    $select.val(String(value));
    if ($select.data("ui-selectmenu")) {
      $select.selectmenu("refresh");
    }
    if (spec.follow) {
      spec.follow(convert(value), true);
    }
  }
  module.select = select;

  module[spec.signal] = function (value) {
    select(value);
    if (spec.echo) {
      report(spec.echo, convert(value), true);
    }
  };
  if (spec.signal_ui) {
    module[spec.signal_ui] = select;
  }

  module.setup = module["setup_" + spec.name + "_dropdown"] = function () {
    $(spec.element).selectmenu({
      width: null,
      change: function (event, data) {
        var value = convert(data.item.value);
        if (spec.follow) {
          spec.follow(value, false);
        }
        if (spec.echo) {
          report(spec.echo, value, false);
        } else {
          report(spec.slot, value);
        }
      }
    });
  };
};

// A number box that shows its unit while it is not being edited. spec: name,
// element, slot, signal, unit (a function, so that a translated word is read
// when drawn), min, max, and float for decimal values.
exports.number_box = function (module, spec) {
  var parse = spec.float ? parseFloat : function (text) { return parseInt(text, 10); };
  module.kind = "number_box";
  module.value = null;

  function unit_text() {
    return spec.unit ? " " + spec.unit() : "";
  }

  function draw(value) {
    module.value = value;
    var text = value === null || value === "" ? "" : value + unit_text();
    $("*[id|=" + spec.element.slice(1) + "]").val(text);
  }
  module.redraw = function () {
    if (document.activeElement !== $(spec.element)[0]) {
      draw(module.value);
    }
  };

  module[spec.signal] = function (value) {
    draw(spec.float ? String(value) : parse(value));
  };

  function clamp(value) {
    if (spec.min !== undefined && value < spec.min) {
      return spec.min;
    }
    if (spec.max !== undefined && value > spec.max) {
      return spec.max;
    }
    return value;
  }
  module.clamp = clamp;

  module.setup = function () {
    var $box = $(spec.element);
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
        report(spec.slot, typed);
      }
    });
    draw(spec.value === undefined ? null : spec.value);
  };
};

// A time of day. spec: name, element, slot, signal.
exports.time_picker = function (module, spec) {
  module.kind = "time_picker";
  function two_digits(number) {
    return ("0" + number).slice(-2);
  }
  module[spec.signal] = function (hours, minutes) {
    $(spec.element).timepicker("setTime", two_digits(hours) + ":" + two_digits(minutes));
  };
  module.setup = function () {
    $(spec.element).timepicker({ timeFormat: "H:i", step: 15, disableTextInput: false })
      .on("change", function () {
        var time = $(spec.element).timepicker("getTime");
        if (time) {
          report(spec.slot, time.getHours(), time.getMinutes());
        }
      });
  };
};

// Two buttons that switch a feature on and off and show which is in force.
// spec: name, on, off (selectors), slot, setter.
exports.switch_buttons = function (module, spec) {
  var name = spec.name;
  module.kind = "buttons";
  module[name] = false;
  function show(use) {
    module[name] = use;
    $(spec.on).toggleClass("active", use);
    $(spec.off).toggleClass("active", !use);
  }
  module[spec.setter || "set_" + name] = function (use) {
    show(!!use);
  };
  module.setup = function () {
    $(spec.on).on("click", function () {
      show(true);
      report(spec.slot, true);
    });
    $(spec.off).on("click", function () {
      show(false);
      report(spec.slot, false);
    });
    show(false);
  };
};
