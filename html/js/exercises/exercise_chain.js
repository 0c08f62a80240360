// Runs a chain of exercise steps in one notification: each click shows the
// next step, the last one closes the window.
"use strict";

function run_exercise_chain(steps, icon) {
  var id = null;

  function show(index) {
    var last = index === steps.length - 1;
    var options = {
      title: steps[index].title,
      text: steps[index].text,
      icon: icon,
      footer: index === 0 ? steps.length - 1 + " exercises" : index + " of " + (steps.length - 1),
      next: index === 0 ? "Begin \u203a" : (last ? "Done \u2713" : "Next \u203a"),
      action: last ? finish : function () { show(index + 1); }
    };
    if (id === null) {
      id = Notifier.addNotification(options);
    } else {
      Notifier.editNotification(id, options);
    }
    setScreenSize();
  }

  // The window goes once the card has: the page hears "notification-removed".
  function finish() {
    Notifier.removeNotification(id);
  }

  show(0);
}
