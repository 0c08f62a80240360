"use strict";

// The basic and the advanced view. The window takes the size of the view
// that is shown, so a switch reports the new size with it.
function show_view(advanced) {
  $(".view-basic").toggle(!advanced);
  $(".view-advanced").toggle(advanced);
  if (advanced) {
    page_loading.close_pages();
  }
}

forms.checkbox(exports, {
  name: "use_advanced_settings",
  element: "#use-advanced-settings-checkbox",
  slot: "use_advanced_settings_changed",
  follow: function (advanced, from_native) {
    show_view(advanced);
    if (from_native && load_finished) {
      refresh_size();
    }
  },
  extra: function () {
    return [window_dimensions.get_window_width(), window_dimensions.get_window_height()];
  }
});
