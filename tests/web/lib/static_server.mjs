// Serves the pages as the program would, without the program: html/ at the
// root and the npm libraries where resources/page-libraries.txt puts them.
// No channel script is served, so a page comes up on its own.
import http from "node:http";
import fs from "node:fs";
import path from "node:path";

const TYPES = {
  ".html": "text/html; charset=utf-8", ".js": "text/javascript", ".css": "text/css",
  ".svg": "image/svg+xml", ".woff2": "font/woff2", ".woff": "font/woff", ".png": "image/png"
};

function library_map(source_dir) {
  const map = new Map();
  const text = fs.readFileSync(path.join(source_dir, "resources/page-libraries.txt"), "utf8");
  for (const line of text.split("\n")) {
    const match = line.match(/^([^# ]+)\s+(\S+)$/);
    if (match) {
      map.set("/" + match[2].replace(/^html\//, ""), path.join(source_dir, "node_modules", match[1]));
    }
  }
  return map;
}

export function start_static_server(source_dir) {
  const libraries = library_map(source_dir);
  const root = path.join(source_dir, "html");
  const server = http.createServer((request, response) => {
    const url_path = decodeURIComponent(new URL(request.url, "http://x").pathname);
    const file = libraries.get(url_path) || path.join(root, path.normalize(url_path));
    if (!file.startsWith(root) && !libraries.has(url_path)) {
      response.writeHead(403).end();
      return;
    }
    fs.readFile(file, (error, data) => {
      if (error) {
        response.writeHead(404).end();
        return;
      }
      response.writeHead(200, { "Content-Type": TYPES[path.extname(file)] || "application/octet-stream" });
      response.end(data);
    });
  });
  return new Promise((resolve) => {
    server.listen(0, "127.0.0.1", () => {
      resolve({ server, base: `http://127.0.0.1:${server.address().port}/` });
    });
  });
}
