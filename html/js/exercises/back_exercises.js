// The back exercises: nine stretches in the chair after an introduction.
"use strict";

var BACK_EXERCISES = [
  { title: "Back Exercises",
    text: "Nine easy stretches you can do in your chair. Sit near the front of the seat with " +
      "your feet flat on the floor, move slowly and keep breathing. Click to begin." },
  { title: "Shoulder Shrugs",
    text: "Lift both shoulders up towards your ears, hold for 2 seconds, then let them drop " +
      "and relax. Repeat 10 times." },
  { title: "Shoulder Blade Pinch",
    text: "Sit tall and squeeze your shoulder blades together, as if holding a pencil between " +
      "them. Hold for 5 seconds and release. Repeat 10 times." },
  { title: "Shoulder Rolls",
    text: "Roll your shoulders slowly backwards in big circles 10 times, " +
      "then forwards 10 times." },
  { title: "Spinal Twist",
    text: "Sit tall, put your left hand on your right knee and gently turn your upper body to " +
      "the right. Hold for 15 seconds, then twist to the left." },
  { title: "Back Arches",
    text: "Place your hands on your lower back, lift your chest and arch gently backwards, " +
      "looking slightly up. Hold for 5 seconds. Repeat 5 times." },
  { title: "Seated Forward Fold",
    text: "With your feet apart, bend slowly forwards and let your arms and head hang towards " +
      "the floor. Breathe deeply for 20 seconds, then roll up slowly." },
  { title: "Side Bend",
    text: "Raise your right arm over your head and lean gently to the left. " +
      "Hold for 15 seconds, then change sides." },
  { title: "Seated Cat-Cow Pose",
    text: "Hands on your knees. Breathing in, arch your back and lift your chest; breathing " +
      "out, round your back and drop your chin. Repeat 8 times." },
  { title: "Sideways Curves",
    text: "Sit tall with your hands on your hips and slowly circle your upper body, " +
      "5 times each way. That was the last one: well done!" }
];

function start_back_exercise0() {
  run_exercise_chain(BACK_EXERCISES, "fa-male");
}
