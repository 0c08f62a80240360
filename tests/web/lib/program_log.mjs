// What the program says about its page on standard error when started with
// TRACED: each call the page makes on its object, before it runs
// ("ovra.page.calls: work_time_changed(1440)"), and each store of the change
// rule ('"WorkTime" 1440'). A call that changes nothing stores nothing, so
// an echo shows among the calls and a repeated store among the stores.
export const TRACED = { env: { OVRA_DEBUG: "1", QT_LOGGING_RULES: "ovra.page.calls.debug=true" } };

const CALL = /^ovra\.page\.calls: (\w+)\((.*)\)$/;
const STORE = /^"(\w+)" (.*)$/;

export class ProgramLog {
  constructor(ovra) {
    this.ovra = ovra;
    this.start = 0;
  }

  lines() {
    return this.ovra.stderr().slice(this.start).split("\n");
  }

  // What came before is no longer counted.
  mark() {
    this.start = this.ovra.stderr().length;
  }

  // The calls of slots whose names match, as "name(args)".
  calls_matching(pattern) {
    return this.lines().map((line) => line.match(CALL)).filter((match) => match && pattern.test(match[1]))
      .map((match) => `${match[1]}(${match[2]})`);
  }

  // The arguments of each call of one slot, as the channel carried them.
  calls(slot) {
    return this.calls_matching(new RegExp(`^${slot}$`)).map((call) => call.slice(slot.length + 1, -1));
  }

  // The values stored under one key.
  stores(key) {
    return this.lines().map((line) => line.match(STORE)).filter((match) => match && match[1] === key)
      .map((match) => match[2]);
  }
}

// Two round trips through the channel: the first answer comes after every
// signal that the program sent before it, so the page has handled them; the
// second after anything the page sent in return. Standard error, written
// before each answer, then holds the whole story.
export async function settle(page) {
  for (let trip = 0; trip < 2; trip++) {
    await page.evaluate(() => new Promise((resolve) => native_object.get_os_name(resolve)));
  }
  await new Promise((resolve) => setTimeout(resolve, 100));
}
