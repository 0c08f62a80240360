#include "spells/SpellHelp.h"

#include "spells/SpellTable.h"

namespace {

std::string escaped(const std::string& text)
{
    std::string out;
    for (char c : text) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        default: out += c;
        }
    }
    return out;
}

// A form as the user types it, the placeholders named.
std::string form_html(const std::string& form)
{
    std::string out;
    size_t start = 0;
    while (start <= form.size()) {
        size_t end = form.find(' ', start);
        if (end == std::string::npos)
            end = form.size();
        const std::string word = form.substr(start, end - start);
        if (!out.empty())
            out += ' ';
        if (word == "%b")
            out += "<var>enable</var>|<var>disable</var>";
        else if (word == "%d")
            out += "<var>whole number</var>";
        else if (word == "%f")
            out += "<var>number</var>";
        else if (word == "%s")
            out += "<var>word</var>";
        else
            out += escaped(word);
        start = end + 1;
    }
    return out;
}

const char* const head = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Ovra spells</title>
<style>
body { font-family: Roboto, "Helvetica Neue", Arial, sans-serif; color: #333; margin: 2em auto;
       max-width: 56em; padding: 0 1em; line-height: 1.45; }
h1 { font-weight: 300; }
table { border-collapse: collapse; width: 100%; }
th, td { text-align: left; vertical-align: top; padding: .45em .6em;
         border-bottom: 1px solid #e6e6e6; }
code { display: block; white-space: nowrap; }
var { font-style: italic; color: #2a7ab0; }
</style>
</head>
<body>
<h1>Spells</h1>
<p>Type a spell in the box of the page Hidden features and press Activate, or give it to
<code style="display:inline">ovra</code> on the command line while Ovra runs, for example
<code style="display:inline">ovra st 3000</code>. Upper and lower case are the same.
Where a form shows <var>enable</var>|<var>disable</var>, the words true, on, yes, use and start
also switch on, and false, off, no, halt and stop switch off.</p>
<table>
<tr><th>Spell</th><th>What it does</th></tr>
)";

const char* const tail = R"(</table>
</body>
</html>
)";

} // namespace

std::string SpellHelp::page()
{
    std::string html = head;
    for (const SpellRow& row : spell_table()) {
        html += "<tr><td>";
        for (const char* form : row.forms)
            if (form)
                html += "<code>" + form_html(form) + "</code>";
        html += "</td><td>" + escaped(row.help) + "</td></tr>\n";
    }
    html += tail;
    return html;
}
