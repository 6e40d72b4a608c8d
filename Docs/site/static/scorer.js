// The order of the search's results: a function whose name was typed, with or without its prefix, comes first. The names
// of sections that every page of a function has come last. A script of its own, and not Sphinx's html_search_scorer, so
// that Sphinx's scripts stay as Debian has them and the package links to them.
var Scorer = {
  objNameMatch: 11,
  objPartialMatch: 6,
  objPrio: { 0: 15, 1: 5, 2: -5 },
  objPrioDefault: 0,
  title: 15,
  partialTitle: 7,
  term: 5,
  partialTerm: 2,
  score: function (result) {
    var plain = function (text) { return text.toLowerCase().replace(/[^a-z0-9]/g, ""); };
    var withoutPrefix = function (text) { return text.replace(/^(VB_|Cpp_|Run)/, ""); };
    var page = result[0], title = result[1], score = result[4];
    var query = plain(new URLSearchParams(window.location.search).get("q") || "");
    if (!query || page.indexOf("functions/") !== 0) return score + 3;
    if (title.indexOf(" > ") >= 0) return score - 100;
    if (plain(title) === query) return score + 200;
    if (/^(VB_|Cpp_)/.test(title)) score -= 5; // its function tells more
    if (plain(withoutPrefix(title)) === query) return score + 120;
    if (plain(withoutPrefix(title).replace(/^[MV]_/, "")) === query) return score + 100;
    if (plain(title).indexOf(query) >= 0) return score + 40 - title.length / 4;
    return score;
  },
};
