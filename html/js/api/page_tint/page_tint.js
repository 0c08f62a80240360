// Tints the page itself when no program is behind it, so that a designer in
// a plain browser sees roughly what a temperature does. An SVG colour matrix
// filter scales the three channels by the white point.
"use strict";

var FILTER_ID = "ovra_filter_matrix";
var SVG_NS = "http://www.w3.org/2000/svg";

function filter_element() {
  var holder = document.getElementById(FILTER_ID);
  if (holder) {
    return holder.querySelector("feColorMatrix");
  }
  holder = document.createElementNS(SVG_NS, "svg");
  holder.setAttribute("id", FILTER_ID);
  holder.setAttribute("width", "0");
  holder.setAttribute("height", "0");
  holder.style.position = "absolute";
  holder.style.zIndex = "-1999999999";
  var filter = document.createElementNS(SVG_NS, "filter");
  filter.setAttribute("id", FILTER_ID + "_filter");
  filter.setAttribute("color-interpolation-filters", "sRGB");
  var matrix = document.createElementNS(SVG_NS, "feColorMatrix");
  matrix.setAttribute("type", "matrix");
  filter.appendChild(matrix);
  holder.appendChild(filter);
  document.body.appendChild(holder);
  return matrix;
}

exports.set_tint = function (temperature, brightness) {
  var white = color_ramp.get_gamma(temperature, brightness);
  var values = [
    white[0], 0, 0, 0, 0,
    0, white[1], 0, 0, 0,
    0, 0, white[2], 0, 0,
    0, 0, 0, 1, 0
  ];
  filter_element().setAttribute("values", values.join(" "));
  document.documentElement.style.filter = "url(#" + FILTER_ID + "_filter)";
};

exports.clear_tint = function () {
  document.documentElement.style.filter = "";
};
