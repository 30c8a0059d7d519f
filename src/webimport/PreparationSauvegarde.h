#pragma once

#include <QString>

namespace webimport {

/// The title of an imported recipe as it is stored and names its picture: blanks in the place of the
/// characters that part the folders of a path.
QString TitreAStocker(QString titre);

/// The wine advice without its apostrophes, so that the next import of the same advice finds its row.
QString VinAStocker(QString vin);

} // namespace webimport
