#pragma once

class QRect;

namespace platform::geometry {

/// A length on a window, in twips: 1/1440 inch, 15 to the logical pixel where the screen is large enough.
/// Held as a 32-bit float; pixels exist only where a control is placed.
class Twips {
public:
    constexpr Twips() = default;

    constexpr explicit Twips(float value) : m_value(value) {}

    constexpr explicit Twips(double value) : m_value(static_cast<float>(value)) {}

    constexpr explicit Twips(int value) : m_value(static_cast<float>(value)) {}

    constexpr float value() const { return m_value; }

    int pixels() const;

    static constexpr Twips fromPixels(int pixels, double perPixel) { return Twips(pixels * perPixel); }

    friend constexpr Twips operator+(Twips a, Twips b) { return Twips(a.m_value + b.m_value); }

    friend constexpr Twips operator-(Twips a, Twips b) { return Twips(a.m_value - b.m_value); }

    friend constexpr Twips operator*(int factor, Twips a) {
        return Twips(static_cast<float>(factor) * a.m_value);
    }

    friend constexpr Twips operator*(double factor, Twips a) { return Twips(factor * a.m_value); }

    friend constexpr Twips operator/(Twips a, int divisor) {
        return Twips(a.m_value / static_cast<float>(divisor));
    }

    friend constexpr bool operator==(Twips, Twips) = default;

    friend constexpr bool operator<(Twips a, Twips b) { return a.m_value < b.m_value; }

private:
    float m_value = 0;
};

/// Half of a length by integer division: rounded to the nearest integer first (ties to even), then truncated.
Twips IntegerHalf(Twips length);

/// Width and height.
struct Extent {
    Twips width, height;
};

/// A place inside a parent.
struct Rectangle {
    Twips left, top, width, height;

    constexpr Twips right() const { return left + width; }

    constexpr Twips bottom() const { return top + height; }

    /// The pixels covered; edges are rounded, so that neighbours in twips are neighbours on screen.
    QRect pixels() const;
};

/// Twips for one pixel where the screen has room for a whole window.
inline constexpr double kTwipsPerPixel = 15;

/// The size that all full windows of the program have.
inline constexpr Extent kWindowSize{Twips(15360), Twips(11100)};

/// Twips for one logical pixel on this screen: kTwipsPerPixel, or more where the available area of the
/// primary screen is smaller than a window. The same for the whole run.
double twipsPerPixel();

} // namespace platform::geometry
