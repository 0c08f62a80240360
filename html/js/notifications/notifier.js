// A small notification card in #snarl-wrapper: a title with an icon, a
// text, a footer line, and an action run by a click on the card. The close
// button removes it. Events on the document: "notifier-ready" once the
// wrapper is there, "notification-removed" when a card has gone.
"use strict";

var Notifier = (function () {
  var cards = {};
  var next_id = 1;

  function wrapper() {
    return document.getElementById("snarl-wrapper");
  }

  function fill(card, options) {
    card.querySelector(".badge i").className = "fa " + (options.icon || "fa-bell");
    card.querySelector(".title").textContent = options.title || "";
    var text = card.querySelector(".text");
    text.textContent = options.text || "";
    text.classList.remove("step-text");
    void text.offsetWidth;
    text.classList.add("step-text");
    card.querySelector(".step").textContent = options.footer || "";
    card.querySelector(".next").textContent = options.next || "";
    card.action = options.action || null;
  }

  function build(id) {
    var card = document.createElement("div");
    card.className = "exercise";
    card.innerHTML =
      "<button type=\"button\" class=\"btn close\"><i class=\"fa fa-times\"></i></button>" +
      "<header><div class=\"badge\"><i></i></div><h2 class=\"title\"></h2></header>" +
      "<p class=\"text\"></p>" +
      "<footer><span class=\"step\"></span><span class=\"next\"></span></footer>";
    card.addEventListener("click", function (event) {
      if (event.target.closest(".close")) {
        remove(id);
      } else if (card.action) {
        card.action();
      }
    });
    return card;
  }

  function add(options) {
    var id = next_id++;
    var card = build(id);
    cards[id] = card;
    fill(card, options);
    wrapper().appendChild(card);
    return id;
  }

  function edit(id, options) {
    if (cards[id]) {
      fill(cards[id], options);
    }
  }

  function remove(id) {
    var card = cards[id];
    if (!card) {
      return;
    }
    delete cards[id];
    card.classList.add("closed");
    setTimeout(function () {
      card.remove();
      document.dispatchEvent(new CustomEvent("notification-removed", { detail: id }));
    }, 500);
  }

  document.addEventListener("DOMContentLoaded", function () {
    document.dispatchEvent(new CustomEvent("notifier-ready"));
  });

  return { addNotification: add, editNotification: edit, removeNotification: remove };
})();
