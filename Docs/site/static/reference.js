// The search's results name each page once, and tell what a function computes: its page itself cannot be fetched from the
// disk. The names of languages in tabs are remembered from page to page.
(function () {
  "use strict";

  var shown = {};

  function addSummary(item) {
    var link = item.querySelector("a");
    if (!link || item.dataset.seen) return;
    item.dataset.seen = "yes";
    var page = link.getAttribute("href").split(/[?#]/)[0].replace(/\.html$/, "").replace(/^(\.\/|\.\.\/)*/, "");
    if (shown[page]) {
      item.remove();
      return;
    }
    shown[page] = true;
    var text = window.functionSummaries && functionSummaries[page];
    if (!text) return;
    var told = document.createElement("p");
    told.className = "computes";
    told.textContent = text;
    item.appendChild(told);
  }

  function watchResults() {
    var results = document.getElementById("search-results");
    if (!results) return;
    new MutationObserver(function () {
      results.querySelectorAll("li").forEach(addSummary);
    }).observe(results, { childList: true, subtree: true });
  }

  function rememberLanguage() {
    var labels = Array.from(document.getElementsByClassName("tab-label"));
    var last = null;
    try { last = localStorage.getItem("vecmat-language"); } catch (error) { /* the disk may keep nothing */ }
    labels.forEach(function (label) {
      if (label.textContent === last && label.previousElementSibling) label.previousElementSibling.checked = true;
      label.addEventListener("click", function () {
        try { localStorage.setItem("vecmat-language", label.textContent); } catch (error) { /* as above */ }
      });
    });
  }

  document.addEventListener("DOMContentLoaded", function () {
    watchResults();
    rememberLanguage();
  });
})();
