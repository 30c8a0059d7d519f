#pragma once

#include <QImage>

#include <optional>
#include <sane/sane.h>

#include <vector>

namespace platform::scanner {

/// Makes a picture of the frames that a scanner delivers: one of gray or colour, or three of one colour each, of
/// 1, 8 or 16 bits a sample, with a number of lines that may be unknown before the end.
class FrameAssembler {
public:
    /// Starts a frame. The later ones of three must have the size of the first.
    /// @throws ScannerError for parameters that describe no picture, or one of more than 200 megapixels
    void begin(const SANE_Parameters &parameters);

    /// Takes bytes as they come, cut anywhere.
    /// @throws ScannerError when more lines come than a picture may have
    void add(const SANE_Byte *bytes, std::size_t count);

    /// From 0 to 1; none while the number of lines is unknown.
    std::optional<double> progress() const;

    /// The lines that came in full: gray (QImage::Format_Grayscale8) or colour (QImage::Format_RGB32). Null when
    /// there were none.
    QImage picture() const;

private:
    void addLine(const SANE_Byte *line);
    int sample(const SANE_Byte *line, int pixel, int channel) const;

    SANE_Parameters m_frame{};
    std::vector<SANE_Byte> m_line; // begins the next line
    QImage m_picture;              // as high as there was room for
    int m_lines = 0;               // of the current frame
    int m_height = 0;
    int m_framesDone = -1;
};

} // namespace platform::scanner
