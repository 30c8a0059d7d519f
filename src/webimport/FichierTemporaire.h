#pragma once

#include <QByteArray>
#include <QString>

namespace webimport {

/// A text as one value of variable length: two bytes of type (8) and two of length, the low bytes first and
/// of the length its low 16 bits; then the characters in code page 1252, "?" for each that it lacks.
QByteArray EnregistrementDuTexte(const QString &texte);

/// All bytes of a file as characters of code page 1252, those of type and length too: the four stand in front
/// of the first line. A byte without a character stands for the control character of its value.
QString TexteDuFichier(const QByteArray &octets);

/// Writes a text as such a value to the beginning of a file. A longer file keeps its end.
/// @throws ErreurExecution when it can't
void EcrireTexte(const QString &chemin, const QString &texte);

/// Reads such a file.
/// @throws ErreurExecution when it can't
QString LireTexte(const QString &chemin);

} // namespace webimport
