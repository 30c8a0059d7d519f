#pragma once

#include <QString>

namespace webimport {

/// Source of the script that writes a page in the form that is read. Its value is a function of the document element
/// that returns the text; the rules stand in the script.
QString ScriptPageAncienne();

} // namespace webimport
