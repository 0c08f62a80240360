// What the page shows on its own before anything was stored.
"use strict";

exports.DEFAULTS = {
  OvraMode: 1,
  OvraType: 1,
  TimerType: 2,
  AdvancedView: false,
  DayTemperature: 6500,
  NightTemperature: 4400,
  SleepLight: 3700,
  DayBrightness: 100,
  NightBrightness: 85,
  SleepBrightness: 80,
  WorkTime: 30,
  RestTime: 60,
  PostponeTime: 5,
  Language: "en"
};

exports.DEFAULT_UNUSED_PAGES = ["Color Temperature", "PWM control", "CPU", "GPU", "Hardware",
  "Sounds", "Kindle", "Debug"];
