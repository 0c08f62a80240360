// The real program for page tests: started with --web-bridge on the test's
// X server, in the private HOME and XDG folders that tests/tools/isolated
// gives each test, and asked for its page's address on standard output.
import { spawn, execFileSync } from "node:child_process";
import fs from "node:fs";
import path from "node:path";

const ADDRESS = /http:\/\/127\.0\.0\.1:\d+\/\S*/;

export function config_file() {
  const base = process.env.XDG_CONFIG_HOME || path.join(process.env.HOME, ".config");
  const name = process.getuid && process.getuid() === 0 ? "Ovra-root.conf" : "Ovra.conf";
  return path.join(base, "Morvenik", name);
}

export function write_config(values) {
  const file = config_file();
  fs.mkdirSync(path.dirname(file), { recursive: true });
  const lines = ["[General]", ...Object.entries(values).map(([key, value]) => `${key}=${value}`)];
  fs.writeFileSync(file, lines.join("\n") + "\n");
}

export function read_config() {
  const values = new Map();
  if (!fs.existsSync(config_file())) {
    return values;
  }
  for (const line of fs.readFileSync(config_file(), "utf8").split("\n")) {
    const match = line.match(/^([^=[\s]+)=(.*)$/);
    if (match) {
      values.set(match[1], match[2]);
    }
  }
  return values;
}

export async function wait_for(predicate, timeout_ms = 10000, interval_ms = 100) {
  const deadline = Date.now() + timeout_ms;
  for (;;) {
    const result = await predicate();
    if (result || Date.now() > deadline) {
      return result;
    }
    await new Promise((resolve) => setTimeout(resolve, interval_ms));
  }
}

export function read_ramps(crtc = 0) {
  const lines = execFileSync(process.env.OVRA_RAMPS, ["get", String(crtc)], { encoding: "utf8" })
    .trim().split("\n");
  return lines.slice(1, 4).map((line) => line.split(/\s+/).map(Number));
}

// `env` adds to the test's environment; the program's standard error is kept
// whole for stderr().
export async function start_ovra({ env = {} } = {}) {
  if (!process.env.OVRA_BINARY || !process.env.DISPLAY) {
    throw new Error("needs OVRA_BINARY and an X server: run it through ctest under make test");
  }
  const child = spawn(process.env.OVRA_BINARY, ["--web-bridge"], {
    env: { ...process.env, QTWEBENGINE_DISABLE_SANDBOX: "1", QTWEBENGINE_CHROMIUM_FLAGS: "--disable-gpu", ...env },
    stdio: ["ignore", "pipe", "pipe"]
  });
  let output = "";
  let errors = "";
  child.stderr.on("data", (data) => { errors += data; });
  const address = await new Promise((resolve, reject) => {
    const timer = setTimeout(() => reject(new Error("no address within 20 s; stderr: " + errors)), 20000);
    child.stdout.on("data", (data) => {
      output += data;
      const match = output.match(ADDRESS);
      if (match) {
        clearTimeout(timer);
        resolve(match[0]);
      }
    });
    child.on("exit", (code) => {
      clearTimeout(timer);
      reject(new Error(`ovra ended with ${code} before it printed an address; stderr: ${errors}`));
    });
  });
  return {
    child,
    address,
    stderr: () => errors,
    page_url() {
      const url = new URL(address);
      if (url.pathname.endsWith("/")) {
        url.pathname += "main_screen.html";
      }
      url.searchParams.set("window", "main");
      return url.toString();
    },
    stop() {
      return new Promise((resolve) => {
        if (child.exitCode !== null) {
          resolve(child.exitCode);
          return;
        }
        child.on("exit", (code) => resolve(code));
        child.kill("SIGTERM");
      });
    }
  };
}
