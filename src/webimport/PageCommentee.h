#pragma once

#include "Page.h"

#include <functional>

namespace webimport {

/// Reads a page of the layout that puts each section between a pair of comments.
/// @param afficherLigne gets each line before it is read
/// @throws ErreurExecution for what the page cannot mean; what is read in the page's order counts
ChampsPage ExtrairePageCommentee(const PageCapturee &page,
                                 const std::function<void(const QString &ligne)> &afficherLigne);

} // namespace webimport
