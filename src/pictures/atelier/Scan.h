#pragma once

#include <QString>

namespace pictures::atelier {

class Acquisition;

// The operations of the picture workshop. Each takes PhotoScan as it is and leaves its result there; there is no way
// back. Without a picture, turns and mirrors do nothing.

/// A quarter turn, with its progress shown; runs the events of the program meanwhile. It stops, and changes nothing,
/// when one of them leaves the window. Leaves temp.bmp behind.
/// @throws what pictures::Rotation and pictures::PasserParTempBmp throw
void RotationGauche(Acquisition &fenetre);
void RotationDroite(Acquisition &fenetre);

/// Left and right, or top and bottom, change places. Throws as above, and removes temp.bmp.
void MiroirHorizontal(Acquisition &fenetre);
void MiroirVertical(Acquisition &fenetre);

/// Asks for a file and opens it; NomDeFichier is empty after a cancel, which takes the picture away.
void OuvrirImage(Acquisition &fenetre);

/// Opens a file; a name without a file takes the picture away, and one that is no picture leaves the one before.
void OuvrirFichier(Acquisition &fenetre, const QString &nom);

/// Asks for a name and saves the picture under it as a bitmap, in its full size. A failure is reported in a box; the
/// file that was there stays, and the picture too.
/// @return whether the picture was saved
bool SauverImage(Acquisition &fenetre);

/// Lets the user choose a scanner and takes a picture from it, by way of the clipboard.
void AcquerirScanner(Acquisition &fenetre);

/// Takes the clipboard's picture, if there is one, as if it came from the scanner.
void CollerImage(Acquisition &fenetre);

/// Shows the picture of PhotoScan1 over Cadre.
void AjusterPhotoScan(Acquisition &fenetre);

} // namespace pictures::atelier
