// A slow constellation: points drifting across a canvas, joined by faint
// lines while they are near each other. Frames come from a plain timer at
// the frame rate (15 a second unless asked otherwise, 30 at most): each
// frame repaints the whole screen, which without a GPU is the cost of the
// screen, and animation-frame callbacks would wake the engine at the
// display's rate even for frames that are skipped. Nothing while the page
// is hidden, and nothing at all once stopped.
"use strict";

function Constellation(canvas, options) {
  options = options || {};
  this.canvas = canvas;
  this.context = canvas.getContext("2d");
  this.frame_msecs = 1000 / Math.min(30, options.fps || 15);
  this.density = options.density || 1 / 26000;
  this.reach = options.reach || 150;
  this.speed = options.speed || 9;
  this.points = [];
  this.running = false;
  this.request = 0;
  this.last_time = 0;
  var self = this;
  this.on_frame = function (time) { self.frame(time); };
  this.on_resize = function () { self.resize(); };
  this.on_visibility = function () {
    if (document.hidden) {
      self.pause();
    } else if (self.running) {
      self.schedule();
    }
  };
}

Constellation.prototype.resize = function () {
  var ratio = window.devicePixelRatio || 1;
  var width = this.canvas.clientWidth;
  var height = this.canvas.clientHeight;
  this.canvas.width = Math.round(width * ratio);
  this.canvas.height = Math.round(height * ratio);
  this.context.setTransform(ratio, 0, 0, ratio, 0, 0);
  this.width = width;
  this.height = height;
  var wanted = Math.max(12, Math.min(140, Math.round(width * height * this.density)));
  while (this.points.length < wanted) {
    var angle = Math.random() * Math.PI * 2;
    var speed = this.speed * (0.4 + Math.random() * 0.6);
    this.points.push({
      x: Math.random() * width,
      y: Math.random() * height,
      vx: Math.cos(angle) * speed,
      vy: Math.sin(angle) * speed,
      r: 1 + Math.random() * 1.4
    });
  }
  this.points.length = wanted;
};

Constellation.prototype.start = function () {
  if (this.running) {
    return;
  }
  this.running = true;
  this.resize();
  window.addEventListener("resize", this.on_resize);
  document.addEventListener("visibilitychange", this.on_visibility);
  this.schedule();
};

Constellation.prototype.stop = function () {
  this.running = false;
  this.pause();
  window.removeEventListener("resize", this.on_resize);
  document.removeEventListener("visibilitychange", this.on_visibility);
  this.context.clearRect(0, 0, this.width || 0, this.height || 0);
};

Constellation.prototype.pause = function () {
  if (this.request) {
    clearTimeout(this.request);
    this.request = 0;
  }
  this.last_time = 0;
};

Constellation.prototype.schedule = function () {
  if (!this.request) {
    this.request = setTimeout(this.on_frame, this.frame_msecs);
  }
};

Constellation.prototype.frame = function () {
  this.request = 0;
  if (!this.running || document.hidden) {
    return;
  }
  this.schedule();
  var time = performance.now();
  var seconds = this.last_time ? Math.min(0.1, (time - this.last_time) / 1000) : 0;
  this.last_time = time;
  this.move(seconds);
  this.draw();
};

Constellation.prototype.move = function (seconds) {
  var width = this.width;
  var height = this.height;
  this.points.forEach(function (p) {
    p.x += p.vx * seconds;
    p.y += p.vy * seconds;
    if (p.x < 0 || p.x > width) {
      p.vx = -p.vx;
      p.x = Math.max(0, Math.min(width, p.x));
    }
    if (p.y < 0 || p.y > height) {
      p.vy = -p.vy;
      p.y = Math.max(0, Math.min(height, p.y));
    }
  });
};

Constellation.prototype.draw = function () {
  var context = this.context;
  var points = this.points;
  var reach = this.reach;
  context.clearRect(0, 0, this.width, this.height);
  context.lineWidth = 1;
  for (var i = 0; i < points.length; i++) {
    for (var j = i + 1; j < points.length; j++) {
      var dx = points[i].x - points[j].x;
      var dy = points[i].y - points[j].y;
      var distance = Math.sqrt(dx * dx + dy * dy);
      if (distance < reach) {
        context.strokeStyle = "rgba(255, 255, 255, " + (0.16 * (1 - distance / reach)).toFixed(3) + ")";
        context.beginPath();
        context.moveTo(points[i].x, points[i].y);
        context.lineTo(points[j].x, points[j].y);
        context.stroke();
      }
    }
  }
  context.fillStyle = "rgba(255, 255, 255, 0.55)";
  points.forEach(function (p) {
    context.beginPath();
    context.arc(p.x, p.y, p.r, 0, Math.PI * 2);
    context.fill();
  });
};
