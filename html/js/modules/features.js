// Which pages of the advanced menu are in use. The list of hidden pages
// belongs to the native side; the page shows it on the menu and on the
// features page, where a click on an icon switches a page on or off.
"use strict";

var FEATURES_PAGE = "FEATURES";
var unused_pages_shown = [];

function page_name_of(element) {
  var $element = $(element);
  return $element.attr("page-name") || $.trim($element.text());
}

function is_listed(name, list) {
  var upper = String(name).toUpperCase();
  return list.some(function (entry) {
    return String(entry).toUpperCase() === upper;
  });
}

exports.refresh_unused_pages_internal = function (unused_pages) {
  $(".advanced-settings-menu li").each(function () {
    $(this).toggle(!is_listed(page_name_of(this), unused_pages || []));
  });
};

exports.refresh_unused_pages = function () {
  if (!native_call("get_unused_pages", exports.refresh_unused_pages_internal)) {
    exports.refresh_unused_pages_internal(save_manager.get_unused_pages());
  }
};

exports.set_active_features = function (unused_pages) {
  unused_pages_shown = unused_pages || [];
  $(".features-icons span").each(function () {
    $(this).toggleClass("active", !is_listed(page_name_of(this), unused_pages || []));
  });
};

function menu_text_of(page_name) {
  var text = page_name;
  $(".advanced-settings-menu li").each(function () {
    if (String(page_name_of(this)).toUpperCase() === String(page_name).toUpperCase()) {
      text = $.trim($(this).find(".menu-text").text()) || page_name;
    }
  });
  return text;
}

function show_information(icon) {
  var $label = $("#features-features-information-label");
  if (!icon) {
    $label.text(FEATURE_ON_OFF);
    return;
  }
  var active = $(icon).hasClass("active");
  $label.text(menu_text_of(page_name_of(icon)) + " - " + (active ? ON : OFF));
}

exports.refresh_information = function () {
  show_information(null);
};

// The icons mirror the menu as the platform left it, so both stay one list.
exports.build_icons = function () {
  var $icons = $(".features-icons").empty();
  $(".advanced-settings-menu li").each(function () {
    var name = page_name_of(this);
    if (name.toUpperCase() === FEATURES_PAGE) {
      return;
    }
    var $icon = $("<span>").attr("page-name", name).addClass("active")
      .append($(this).find(".menu-icon").clone());
    $icons.append($icon);
  });
  exports.set_active_features(unused_pages_shown);
};

exports.setup_features_page = function () {
  exports.build_icons();
  var $icons = $(".features-icons");
  $icons.on("click", "span", function () {
    var $icon = $(this);
    var name = $icon.attr("page-name");
    var now_active = !$icon.hasClass("active");
    $icon.toggleClass("active", now_active);
    unused_pages_shown = unused_pages_shown.filter(function (entry) {
      return String(entry).toUpperCase() !== name.toUpperCase();
    });
    if (!now_active) {
      unused_pages_shown.push(name);
    }
    if (native_call(now_active ? "remove_unused_page" : "add_unused_page", name) === false) {
      save_manager.set_page_unused(name, !now_active);
      exports.refresh_unused_pages();
    }
    show_information(this);
  });
  $icons.on("mouseenter", "span", function () { show_information(this); });
  $icons.on("mouseleave", function () { show_information(null); });
  show_information(null);
};
