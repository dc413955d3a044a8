// A stand-in for highlight.js with the same entry points and predictable answers.
window.hljs = {
  listLanguages: function() { return ["Swift", "XML"]; },
  highlight: function(language, text, ignoreIllegals) {
    if (language === "throws") throw new Error("nope");
    if (language === "unbalanced") return { value: "a</span></span>" };
    if (language === "surrogate") return { value: "&#xD800;" };
    if (language === "novalue") return {};
    return { value: '<span class="hljs-keyword">' + text + '</span>&lt;' };
  },
  highlightAuto: function(text) { return { value: text }; }
};
