// The year from JScript: each variant in the four styles, and what is odd about it.
var main = new ActiveXObject("QuorvelTemplate.Main2");

function check(what, actual, expected) {
    if (actual !== expected) WScript.Echo("FAILED " + what + ": " + escape(actual) + ", not " + escape(expected));
}

function Sink() {
    this.text = "";
    this.fonts = "";
}
Sink.prototype.Add = function (text, font) {
    this.text += text;
    this.fonts += font;
};

function yearOf(sink, o) {
    var year = main.build(6, sink);
    if (o) year.Reset(o[0], o[1], o[2], o[3], o[4], o[5], o[6]);
    return year;
}

var styles = [
    ["MLA", [true, false, true, "c.", true, "n.d.", false]],
    ["APA", [false, true, false, "ca.", true, "n.d.", true]],
    ["Turabian", [true, false, true, "ca.", true, "n.d.", true]],
    ["AMA", [false, true, false, "", false, "date unknown", false]]
];

// Text, yearType, Year, and the output in each style.
var rows = [
    ["1990", 0, "1990", "1990", "1990", "1990", "1990"],
    ["\u00a01990. ", 0, "1990", "1990", "1990", "1990", "1990"],
    ["1990-1995", 0, "1990-1995", "1990-1995", "1990\u20131995", "1990\u20131995", "1990-1995"],
    ["1990\u20131995", 0, "1990-1995", "1990-1995", "1990\u20131995", "1990\u20131995", "1990-1995"],
    ["June 5, 1990", 0, "1990", "1990", "1990", "1990", "1990"],
    ["n.d.", 1, "", "n.d.", "n.d.", "n.d.", "date unknown"],
    ["date unknown", 1, "", "n.d.", "n.d.", "n.d.", "date unknown"],
    ["n.d", 0, "n.d", "n.d", "n.d", "n.d", "n.d"],
    ["[1990?]", 2, "1990", "[1990?]", "[1990?]", "[1990?]", "[1990?]"],
    ["[c. 1990]", 3, " 1990", "[c.  1990]", "[ca.  1990]", "[ca.  1990]", "[  1990]"],
    ["[ca. 1990]", 3, " 1990", "[c.  1990]", "[ca.  1990]", "[ca.  1990]", "[  1990]"],
    ["[1990]", 4, "1990", "[1990]", "[1990]", "[1990]", "[1990]"],
    ["[1990-91].", 4, "1990-91", "[1990-91]", "[1990\u201391]", "[1990\u201391]", "[1990-91]"],
    ["forthcoming", 5, "", "forthcoming", "In press", "forthcoming", "In press"],
    ["In press.", 5, "", "forthcoming", "In press", "forthcoming", "In press"],
    ["in press", 0, "in press", "in press", "in press", "in press", "in press"],
    ["", 0, "", "", "", "", ""]
];

for (var s = 0; s < styles.length; ++s) {
    for (var r = 0; r < rows.length; ++r) {
        var row = rows[r], what = styles[s][0] + " " + row[0], sink = new Sink();
        var year = yearOf(sink, styles[s][1]);
        year.Parse(row[0], "ignored");
        year.ToFormattedString(sink, s % 2 == 0, r % 2 == 0);
        check(what + " to the sink", sink.text, row[3 + s]);
        check(what + " font", sink.fonts, "0");
        check(what + " as text", year.toString(true, true), row[3 + s]);
        check(what + " at once", yearOf(sink, styles[s][1]).formatStr(row[0]), row[3 + s]);
        check(what + " yearType", year.yearType, row[1]);
        check(what + " Year", year.Year, row[2]);
    }
    var o = styles[s][1], offered = [true, true, o[2], o[3] != "", o[4], o[0] || o[1]];
    for (var code = 0; code < 6; ++code) {
        check(styles[s][0] + " Supports " + code, year.Supports(code), offered[code]);
    }
    check("Supports 6", year.Supports(6), false);
}

// Without a Reset: the plain and the no-date variant, and no words.
var fresh = yearOf(null, null);
check("fresh", fresh.Supports(0) + "," + fresh.Supports(1) + "," + fresh.Supports(2), "true,true,false");
check("fresh n.d.", fresh.formatStr("n.d."), "");

// A clone has neither the word for works not yet published nor the en dash until its own Reset.
var original = yearOf(null, styles[1][1]);
original.Parse("In press");
var clone = original.Clone();
check("clone of a work in press", clone.toString(), "");
check("clone of a range", clone.formatStr("1990-95"), "1990-95");
check("the original", original.toString(), "In press");
check("clone of a circa year", original.Clone().formatStr("[c.1990]"), "[ca. 1990]");
clone.Reset(true, false, false, "", false, "", true);
check("clone after Reset", clone.formatStr("forthcoming") + clone.formatStr("1-2"), "forthcoming1\u20132");

var tests = [["1990", true], [" 1990a ", true], ["1990-1995", true], ["1990\u201395", true], ["[1990?]", true],
             ["", false], ["n.d.", false], ["Paris", false], ["19", false]];
original.Year = "kept";
original.yearType = 2;
for (var t = 0; t < tests.length; ++t) check("isYear " + tests[t][0], original.isYear(tests[t][0]), tests[t][1]);
check("isYear leaves the element", original.toString(), "[kept?]");

WScript.Echo("done");
