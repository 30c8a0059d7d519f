#pragma once

#include <QString>

namespace webimport {

/// Source of the script that gives a page in its legacy form. Its value is a function of the document element
/// that returns the text; the rules stand in the script.
QString ScriptPageAncienne();

} // namespace webimport
