#pragma once

class QPainter;

namespace sheets {

class FicheAlbum;
struct Mesures;

/// The places and sizes of the sheet as it stands.
Mesures MesuresDe(const FicheAlbum &fiche);

/// Prints the sheet on the painter's device, on one page. A text that does not fit into its place is set smaller, down to
/// kPointsMin, and runs on below its place when it still does not fit.
void Imprimer(const FicheAlbum &fiche, QPainter &feuille);

} // namespace sheets
