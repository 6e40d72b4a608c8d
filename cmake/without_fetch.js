// Emscripten's script takes `fetch` for the sign of a browser, and Node, which has it, then cannot fetch a file. In Node
// this hides it from the script; on a page it changes nothing.
var fetch;
