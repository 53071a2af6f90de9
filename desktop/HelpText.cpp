#include "desktop/HelpWindow.h"

namespace tsln::desktop {

const char* builtInHelp() {
    return R"(<html><head><title>Lists and dialogs</title></head><body>
<h2>Lists</h2>
<p>A list shows every entry of its kind, such as your payment terms. Point to an entry and use the buttons beside
the list, or the keyboard.</p>
<table cellspacing="0" cellpadding="4">
<tr><td><b>New</b></td><td><tt>Ins</tt></td><td>Adds an entry.</td></tr>
<tr><td><b>Edit</b></td><td><tt>Enter</tt>, double click</td><td>Opens the entry to change it.</td></tr>
<tr><td><b>Delete</b></td><td><tt>Del</tt></td><td>Removes the selected entries; the key asks
first, the button does not. Some lists look where an entry is used, keep it then and tell you; the others remove it at
once. While many entries are removed, <tt>Esc</tt> stops after the current one.</td></tr>
<tr><td><b>More</b></td><td></td><td>Imports, exports, prints or saves the list; some lists also move all uses of
an entry to another one or install default entries.</td></tr>
<tr><td><b>Help</b></td><td><tt>F1</tt></td><td>Opens this page.</td></tr>
<tr><td><b>Close</b></td><td><tt>Esc</tt></td><td>Closes the list. What you changed is already stored.</td></tr>
</table>
<p>A button that is grey does not apply to what is selected, or your security role does not allow it.</p>
<h3>Finding and sorting</h3>
<ul>
<li>Click a column's header to sort by that column; click it again to turn the order round.</li>
<li>Type the first letters of an entry, without a pause, to go to it; the letters are looked for in the column that the
list is sorted by, or in the first one.</li>
<li>Drag the line between two headers to change a column's width, or a header to move its column; the list looks the same
when you open it again.</li>
</ul>
<h3>Selecting several entries</h3>
<ul>
<li>Hold <tt>Ctrl</tt> and click to add an entry or take it out.</li>
<li>Hold <tt>Shift</tt> and click, or use the arrow keys, to select all entries between.</li>
<li><tt>Ctrl+A</tt> selects the whole list.</li>
</ul>
<h2>Dialogs</h2>
<p>A dialog shows one entry. Fill in the fields, then press OK to store them.</p>
<table cellspacing="0" cellpadding="4">
<tr><td><tt>Tab</tt>, <tt>Shift+Tab</tt></td><td>Go to the next field or back.</td></tr>
<tr><td><tt>Alt</tt> + underlined letter</td><td>Goes to that field or presses that button.</td></tr>
<tr><td><tt>Enter</tt></td><td>OK: checks the fields, stores the entry and closes the dialog. If something is
missing or cannot be stored you are told, and what you typed stays.</td></tr>
<tr><td><tt>Esc</tt></td><td>Cancel: closes the dialog and stores nothing.</td></tr>
</table>
</body></html>)";
}

}  // namespace tsln::desktop
