#include "FrameAssembler.h"

#include "ScannerTypes.h"

#include <algorithm>

namespace platform::scanner {

namespace {

constexpr qint64 kLargestPicture = 200'000'000; // pixels
constexpr int kFirstLines = 256;                // room made while their number is unknown

int samplesPerPixel(const SANE_Parameters &frame) {
    return frame.format == SANE_FRAME_RGB ? 3 : 1;
}

bool isPartOfThree(const SANE_Parameters &frame) {
    return frame.format == SANE_FRAME_RED || frame.format == SANE_FRAME_GREEN ||
           frame.format == SANE_FRAME_BLUE;
}

qint64 leastBytesPerLine(const SANE_Parameters &frame) {
    const qint64 samples = qint64{frame.pixels_per_line} * samplesPerPixel(frame);
    return frame.depth == 1 ? qint64{(frame.pixels_per_line + 7) / 8} * samplesPerPixel(frame)
                            : samples * (frame.depth / 8);
}

bool describesPicture(const SANE_Parameters &frame) {
    const bool known = frame.depth == 1 || frame.depth == 8 || frame.depth == 16;
    return known && frame.format >= SANE_FRAME_GRAY && frame.format <= SANE_FRAME_BLUE &&
           frame.pixels_per_line > 0 && frame.lines != 0 &&
           frame.bytes_per_line >= leastBytesPerLine(frame) &&
           qint64{frame.pixels_per_line} * std::max(frame.lines, kFirstLines) <= kLargestPicture;
}

/// Pictures are made higher by whole copies, so seldom.
QImage withHeight(const QImage &picture, int height) {
    QImage higher = picture.copy(0, 0, picture.width(), height);
    if (higher.isNull()) {
        throw ScannerError(SANE_STATUS_NO_MEM);
    }
    return higher;
}

} // namespace

void FrameAssembler::begin(const SANE_Parameters &parameters) {
    if (!describesPicture(parameters)) {
        throw ScannerError(SANE_STATUS_INVAL);
    }
    m_frame = parameters;
    ++m_framesDone;
    m_lines = 0;
    m_line.clear();
    m_line.reserve(static_cast<std::size_t>(parameters.bytes_per_line));
    if (m_picture.isNull()) {
        const int height = parameters.lines > 0 ? parameters.lines : kFirstLines;
        m_picture =
            QImage(parameters.pixels_per_line, height,
                   parameters.format == SANE_FRAME_GRAY ? QImage::Format_Grayscale8 : QImage::Format_RGB32);
        if (m_picture.isNull()) {
            throw ScannerError(SANE_STATUS_NO_MEM);
        }
        m_picture.fill(Qt::black);
    } else if (parameters.pixels_per_line != m_picture.width() ||
               (parameters.format == SANE_FRAME_GRAY) != (m_picture.format() == QImage::Format_Grayscale8)) {
        throw ScannerError(SANE_STATUS_INVAL);
    }
}

void FrameAssembler::add(const SANE_Byte *bytes, std::size_t count) {
    const auto whole = static_cast<std::size_t>(m_frame.bytes_per_line);
    while (count > 0) {
        const std::size_t taken = std::min(count, whole - m_line.size());
        m_line.insert(m_line.end(), bytes, bytes + taken);
        bytes += taken;
        count -= taken;
        if (m_line.size() == whole) {
            addLine(m_line.data());
            m_line.clear();
        }
    }
}

int FrameAssembler::sample(const SANE_Byte *line, int pixel, int channel) const {
    const int samples = samplesPerPixel(m_frame);
    switch (m_frame.depth) {
    case 1: {
        // The bytes of the colours take turns, each with eight pixels; in gray a set bit is black.
        const bool set = (line[(pixel / 8) * samples + channel] >> (7 - pixel % 8) & 1) != 0;
        return set != (m_frame.format == SANE_FRAME_GRAY) ? 255 : 0;
    }
    case 16: {
        std::uint16_t value = 0; // in the byte order of this machine
        std::copy_n(line + (std::ptrdiff_t{pixel} * samples + channel) * 2, 2,
                    reinterpret_cast<SANE_Byte *>(&value));
        return value >> 8;
    }
    default:
        return line[std::ptrdiff_t{pixel} * samples + channel];
    }
}

void FrameAssembler::addLine(const SANE_Byte *line) {
    const int width = m_picture.width();
    if (m_lines == m_picture.height()) {
        if (qint64{width} * m_lines * 2 > kLargestPicture) {
            throw ScannerError(SANE_STATUS_NO_MEM);
        }
        m_picture = withHeight(m_picture, m_lines * 2);
    }
    uchar *const target = m_picture.scanLine(m_lines);
    ++m_lines;
    m_height = std::max(m_height, m_lines);
    if (m_frame.format == SANE_FRAME_GRAY) {
        for (int x = 0; x < width; ++x) {
            target[x] = static_cast<uchar>(sample(line, x, 0));
        }
        return;
    }
    auto *const pixels = reinterpret_cast<QRgb *>(target);
    // Red stands above green, green above blue.
    const int shift = isPartOfThree(m_frame) ? 16 - 8 * (m_frame.format - SANE_FRAME_RED) : 0;
    for (int x = 0; x < width; ++x) {
        pixels[x] = isPartOfThree(m_frame) ? pixels[x] | static_cast<QRgb>(sample(line, x, 0)) << shift
                                           : qRgb(sample(line, x, 0), sample(line, x, 1), sample(line, x, 2));
    }
}

std::optional<double> FrameAssembler::progress() const {
    if (m_frame.lines <= 0) {
        return std::nullopt;
    }
    const int frames = isPartOfThree(m_frame) ? 3 : 1;
    const double done = m_framesDone + static_cast<double>(m_lines) / m_frame.lines;
    return std::min(1.0, done / frames);
}

QImage FrameAssembler::picture() const {
    return m_height == 0 ? QImage() : m_picture.copy(0, 0, m_picture.width(), m_height);
}

} // namespace platform::scanner
