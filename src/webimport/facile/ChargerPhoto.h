#pragma once

namespace webimport::facile {

class Facile;

/// Fetches the picture whose address NomPhoto holds and shows it. What fails is passed over: where nothing comes, the
/// picture fetched before is shown once more.
void ChargerPhoto(Facile &fenetre);

} // namespace webimport::facile
