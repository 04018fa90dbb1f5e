// What an error-report service hears of a script:
//     SampleHost --serve --run cscript //nologo errors.js /trace
// "/trace" has the parameters of the procedures reported, too.
var main = new ActiveXObject("QuorvelTemplate.Main2");
var year = main.build(6, null);
year.Supports(7);                  // there are six
year.yearType = "guessed";         // a number
year.ToFormattedString({});        // an object without Add
main.build(18, null);              // notes have a form, and no element
WScript.Echo("done");
