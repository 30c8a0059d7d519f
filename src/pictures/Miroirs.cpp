#include "Miroirs.h"

#include "Entiers.h"

namespace pictures {

using platform::surface::Surface;

namespace {

void Copier(const Surface &source, Surface &destination, Qt::Orientation sens) {
    VerifierEntier16(source.width());
    VerifierEntier16(source.height());
    destination.copyMirrored(source, sens);
}

} // namespace

void MiroirHorizontal(const Surface &source, Surface &destination) {
    Copier(source, destination, Qt::Horizontal);
}

void MiroirVertical(const Surface &source, Surface &destination) {
    Copier(source, destination, Qt::Vertical);
}

} // namespace pictures
