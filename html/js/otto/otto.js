// The page's module loader. Modules are plain script files that fill
// `exports`; they load with synchronous requests so that load order is
// program order and a module is ready the moment `require` returns.
(function (global) {
  "use strict";

  function resolve_name(name) {
    if (typeof chrome === "undefined" || !chrome.extension || !chrome.extension.getURL) {
      return name;
    }
    // Inside a browser extension the pages live one folder further down.
    var in_content_script = typeof chrome.runtime !== "undefined" &&
      global.location.protocol !== "chrome-extension:";
    return in_content_script ? chrome.extension.getURL("html/" + name) : "../html/" + name;
  }

  // js/page_bundle.js, made at build time, holds most files by the name the
  // page asks for, so that opening the page does not wait for a request per
  // file. A file it lacks, or a page served without it, is still fetched.
  function bundled_text(name) {
    var files = global.page_bundle;
    if (files && Object.prototype.hasOwnProperty.call(files, name)) {
      return files[name];
    }
    return null;
  }

  function read_file(name) {
    var text = bundled_text(name);
    if (text !== null) {
      return text;
    }
    var request = new XMLHttpRequest();
    request.open("GET", resolve_name(name), false);
    try {
      request.send(null);
    } catch (error) {
      console.log("read_file failed for " + name + ": " + error);
      return "";
    }
    if (request.status !== 200 && request.status !== 0) {
      console.log("read_file: " + name + " answered " + request.status);
      return "";
    }
    return request.responseText || "";
  }

  function evaluate(name, exports, module) {
    // The source URL names the file in the browser's debugger and in stack traces.
    var body = read_file(name) + "\n//# sourceURL=" + name;
    var factory = new Function("exports", "module", body);
    factory.call(global, exports, module);
  }

  function require(name) {
    if (name in require.cache) {
      return require.cache[name];
    }
    var exports = {};
    var module = { exports: exports };
    evaluate(name, exports, module);
    require.cache[name] = module.exports;
    return module.exports;
  }
  require.cache = Object.create(null);

  function simple_require(name) {
    var exports = {};
    evaluate(name, exports, { exports: exports });
    return exports;
  }

  global.require = require;
  global.simple_require = simple_require;
  global.read_file = read_file;
})(window);
