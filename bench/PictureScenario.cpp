#include "Measure.h"
#include "Scenarios.h"

#include "pictures/Rotation.h"

#include <algorithm>
#include <cmath>

namespace bench {

namespace {

using platform::surface::Surface;

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;
constexpr int kTurns = 7;
constexpr double kGoal = 1.5;

/// The arithmetic that a turn is defined by, without a pixel read or written. Gives a sum of all results, so
/// that none of them is left out.
long long arithmeticAlone(float angle) {
    long long sum = 0;
    const int last = std::max(kWidth, kHeight) / 2 - 1;
    for (int i = 0; i <= last; ++i) {
        for (int j = 0; j <= last; ++j) {
            const auto a =
                static_cast<float>(i == 0 ? 3.14159265359 / 2 : std::atan(static_cast<double>(j) / i));
            const double r = std::nearbyint(std::sqrt(static_cast<double>(j * j + i * i)));
            const double whole = static_cast<double>(a) + static_cast<double>(angle);
            sum += static_cast<long long>(std::nearbyint(r * std::cos(whole)));
            sum += static_cast<long long>(std::nearbyint(r * std::sin(whole)));
        }
    }
    return sum;
}

} // namespace

void measureTurn(Report &report) {
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    Surface source;
    source.setPicture(picture);
    Surface destination;
    const pictures::SuiviRotation nobody{[](double) {}, [] { return true; }};
    volatile long long result = 0;
    const Times times =
        alternate([&] { pictures::TournerUnQuart(source, destination, pictures::kQuartGauche, nobody); },
                  [&] { result = arithmeticAlone(pictures::kQuartGauche); }, kTurns);
    report.add({QStringLiteral("picture of 12 megapixels turned"), QStringLiteral("4000 x 3000"), times.ours,
                times.bare, Goal::Ratio, kGoal});
}

} // namespace bench
