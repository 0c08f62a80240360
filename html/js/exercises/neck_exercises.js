// The neck exercises: seven gentle stretches after an introduction.
"use strict";

var NECK_EXERCISES = [
  { title: "Neck Exercises",
    text: "Seven gentle stretches for a stiff neck. Sit up straight with relaxed shoulders, " +
      "move slowly and stop before it hurts. Click to begin." },
  { title: "Neck Stretch",
    text: "Sit tall and draw your chin straight back, as if making a double chin. " +
      "Hold for 5 seconds, then let go. Repeat 5 times." },
  { title: "Neck Rotation",
    text: "Slowly turn your head to the right until you feel a gentle stretch and hold for " +
      "10 seconds. Come back to the middle and turn left. Three times each side." },
  { title: "Side Bend",
    text: "Tilt your right ear towards your right shoulder, keeping the shoulder low. " +
      "Hold for 15 seconds, then change sides. Twice each side." },
  { title: "Neck Flexion",
    text: "Slowly lower your chin towards your chest until you feel the back of your neck " +
      "stretch. Hold for 15 seconds, then lift your head slowly." },
  { title: "Neck Extension",
    text: "Slowly tilt your head back and look up at the ceiling, without straining. " +
      "Hold for 5 seconds and come back to level. Repeat 3 times." },
  { title: "Drawing Circles",
    text: "Imagine your nose is a pencil and draw small, slow circles in the air: " +
      "5 one way, then 5 the other way." },
  { title: "Neck Flexion With Rotation",
    text: "Turn your head a little to the right, then lower your chin towards your right " +
      "collarbone. Hold for 15 seconds and do the same on the left. Well done!" }
];

function start_neck_exercise0() {
  run_exercise_chain(NECK_EXERCISES, "fa-user");
}
