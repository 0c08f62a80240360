// The English table and the page agree: every text the page asks for has an
// entry, and the English the page shows before it asks is that entry.
import test from "node:test";
import assert from "node:assert/strict";
import fs from "node:fs";
import path from "node:path";
import { SOURCE_DIR } from "./lib/browser.mjs";

function unescape_xml(text) {
  return text.replace(/&lt;/g, "<").replace(/&gt;/g, ">").replace(/&quot;/g, "\"")
    .replace(/&apos;/g, "'").replace(/&amp;/g, "&");
}

// The page's keys: the Translator context of the table. The native contexts
// beside it belong to the program's own texts.
function read_table() {
  const file = fs.readFileSync(path.join(SOURCE_DIR, "translations/ovra_en.ts"), "utf8");
  const contexts = [...file.matchAll(/<name>([^<]*)<\/name>/g)].map((match) => match[1]);
  const text = file.match(/<context>\s*<name>Translator<\/name>([\s\S]*?)<\/context>/)[1];
  const table = new Map();
  for (const match of text.matchAll(/<source>([^<]*)<\/source>\s*<translation>([^<]*)<\/translation>/g)) {
    assert.ok(!table.has(match[1]), "key twice in the table: " + match[1]);
    table.set(match[1], unescape_xml(match[2]));
  }
  return { contexts, table };
}

function markup_texts() {
  const dir = path.join(SOURCE_DIR, "html");
  const files = ["main_screen.html", ...fs.readdirSync(path.join(dir, "pages")).map((f) => "pages/" + f)];
  const texts = [];
  for (const file of files) {
    const text = fs.readFileSync(path.join(dir, file), "utf8");
    for (const match of text.matchAll(/data-tr="(\w+)"[^>]*>([^<]*)</g)) {
      texts.push({ file, key: match[1], english: unescape_xml(match[2]) });
    }
    for (const match of text.matchAll(/data-tr-placeholder="(\w+)" placeholder="([^"]*)"/g)) {
      texts.push({ file, key: match[1], english: unescape_xml(match[2]) });
    }
  }
  return texts;
}

test("the English table holds the page's keys in the Translator context", () => {
  const { contexts, table } = read_table();
  assert.ok(contexts.includes("Translator"));
  for (const [key, english] of [["OVRA_MODE", "Mode"], ["DAY_BLUE_LIGHT", "Day Light"],
    ["MANUAL_AUTOMATIC_TOOGLE", "Manual/Automatic Toggle"], ["min", "min"],
    ["REST_MODE_MESSAGE", "You are in rest mode now. Edit the timer in the settings panel."]]) {
    assert.equal(table.get(key), english, key);
  }
});

test("each text of the page has its key, with the English shown before translation", () => {
  const { table } = read_table();
  const texts = markup_texts();
  assert.ok(texts.length > 250, "the page names " + texts.length + " texts");
  for (const { file, key, english } of texts) {
    assert.ok(table.has(key), `${file}: ${key} is not in the table`);
    assert.equal(english, table.get(key), `${file}: ${key}`);
  }
});

test("the words scripts compose with start as the table has them", () => {
  const { table } = read_table();
  const script = fs.readFileSync(path.join(SOURCE_DIR, "html/js/main_screen.js"), "utf8");
  const words = { ADD: "ADD", REMOVE: "REMOVE", MIN: "min", SEC: "sec", HOUR: "HOUR", ON: "ON",
    OFF: "OFF", FEATURE_ON_OFF: "FEATURE_ON_OFF", LOADING: "LOADING" };
  for (const [variable, key] of Object.entries(words)) {
    const match = script.match(new RegExp(`^var ${variable} = "([^"]*)";`, "m"));
    assert.ok(match, variable + " is declared");
    assert.equal(match[1], table.get(key), variable);
  }
});
