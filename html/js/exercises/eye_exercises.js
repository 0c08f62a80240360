// The eye exercises: ten short steps after an introduction.
"use strict";

var EYE_EXERCISES = [
  { title: "Eye Exercises",
    text: "Ten short exercises to rest your eyes. Sit comfortably, keep your head still, " +
      "and pause for about twenty seconds between exercises. Click to begin." },
  { title: "Gazing Into the Darkness",
    text: "Rub your palms together until they are warm, then cup them gently over your closed " +
      "eyes without pressing. Breathe slowly and rest in the dark for 30 seconds." },
  { title: "Side to Side Eye Movement",
    text: "Keep your head still. Slowly look as far left as is comfortable, then as far right. " +
      "Repeat 10 times, then blink a few times." },
  { title: "Up and Down Eye Movement",
    text: "Keep your head still. Slowly look up as far as is comfortable, then down. " +
      "Repeat 10 times." },
  { title: "Moving Your Eyes Diagonally",
    text: "Look to the upper left, then to the lower right, 5 times. " +
      "Then look to the upper right and the lower left, 5 times more." },
  { title: "Rolling Your Eyes in a Circle",
    text: "Slowly roll your eyes in a wide circle: up, right, down, left. " +
      "Make 5 circles clockwise, then 5 the other way." },
  { title: "Near and Far Focus",
    text: "Hold your thumb about 25 cm from your face and focus on it for 5 seconds. " +
      "Then focus on something at least 6 metres away for 5 seconds. Repeat 10 times." },
  { title: "Concentration One",
    text: "Choose a small object across the room and rest your eyes on it for 15 seconds, " +
      "taking in its details. Then close your eyes for a few calm breaths." },
  { title: "Concentration Two",
    text: "Hold a finger at arm's length and bring it slowly towards your nose, keeping it sharp. " +
      "When it starts to blur, move it slowly back. Repeat 5 times." },
  { title: "Massage One",
    text: "Close your eyes. With your fingertips, gently stroke your eyebrows from the middle " +
      "outwards, then circle your temples softly, for about 30 seconds." },
  { title: "Massage Two",
    text: "With your eyes closed, press lightly along the bone below your eyes with your ring " +
      "fingers, from the nose outwards. Finish with a few slow blinks. Well done!" }
];

function start_eye_exercise0() {
  run_exercise_chain(EYE_EXERCISES, "fa-eye");
}
