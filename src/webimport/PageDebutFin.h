#pragma once

#include "Page.h"

namespace webimport {

/// Reads a page of the layout whose comments begin with the words DEBUT and FIN.
/// @param memoire what the pages before have left; also changed where the reading fails
/// @throws ErreurExecution for what the page cannot mean
ChampsPage ExtrairePageDebutFin(const PageCapturee &page, MemoireImport &memoire);

} // namespace webimport
