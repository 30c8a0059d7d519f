#pragma once

class QPagedPaintDevice;
class QPainter;

namespace sheets {

class FicheAlbum;
struct Mesures;

/// The places and sizes of the sheet as it stands.
Mesures MesuresDe(const FicheAlbum &fiche);

/// Prints the sheet on a paper, on as many pages as it takes; the painter draws on that paper. Throws
/// platform::dialogs::PrintError.
void Imprimer(const FicheAlbum &fiche, QPainter &feuille, QPagedPaintDevice &papier);

} // namespace sheets
