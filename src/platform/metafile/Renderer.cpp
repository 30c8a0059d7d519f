// Draws the Windows metafile on standard input: width and height in 32 bits of this machine's order on standard
// output, and then the rows of pixels, 0xffRRGGBB. Exit code 1 when that fails; a broken file may as well end it
// by a signal.

#include <libwmf/api.h>
#include <libwmf/gd.h>

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

namespace {

constexpr rlim_t kMemory = 1U << 30U;            // bytes
constexpr rlim_t kTime = 8;                      // seconds of the processor
constexpr std::size_t kLargestFile = 64U << 20U; // bytes
constexpr double kDotsPerInch = 96 * 2;          // twice the screen's, to be reduced by the reader
constexpr double kLargestSide = 4096;            // the time grows with the area

void limit(int resource, rlim_t most) {
    const rlimit limits{most, most};
    setrlimit(resource, &limits);
}

void limitResources() {
    limit(RLIMIT_CPU, kTime);
    limit(RLIMIT_CORE, 0);
    // Nothing is to be written but standard output.
    limit(RLIMIT_FSIZE, 0);
#ifndef __SANITIZE_ADDRESS__ // whose shadow memory alone is far larger
    limit(RLIMIT_AS, kMemory);
#endif
}

std::optional<std::vector<unsigned char>> readInput() {
    std::vector<unsigned char> content;
    std::array<unsigned char, 65536> piece{};
    while (const std::size_t count = std::fread(piece.data(), 1, piece.size(), stdin)) {
        content.insert(content.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(count));
        if (content.size() > kLargestFile) {
            return std::nullopt;
        }
    }
    return content;
}

struct CloseApi {
    void operator()(wmfAPI *api) const { wmf_api_destroy(api); }
};

using Api = std::unique_ptr<wmfAPI, CloseApi>;

Api openApi() {
    wmfAPI_Options options{};
    options.function = wmf_gd_function;
    wmfAPI *api = nullptr;
    const unsigned long flags =
        WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG;
    const bool good = wmf_api_create(&api, flags, &options) == wmf_E_None;
    Api owner(api);
    return good ? std::move(owner) : nullptr;
}

int number(const std::vector<unsigned char> &content, std::size_t at) {
    return static_cast<std::int16_t>(content[at] | content[at + 1] << 8);
}

/// The rectangle that the header of a metafile declares as its picture, in the library's coordinates. Left to
/// itself the library shows what is drawn, stretched to that size. None for a file that declares nothing, or
/// that lays out its coordinates in another way than by one window.
std::optional<wmfD_Rect> declaredBox(const std::vector<unsigned char> &content) {
    constexpr std::size_t kDeclaration = 22; // bytes of the header
    constexpr std::size_t kHeaders = kDeclaration + 18;
    constexpr std::array<unsigned char, 4> kKey{0xD7, 0xCD, 0xC6, 0x9A};
    constexpr int kSetWindowOrg = 0x20B;
    constexpr int kSetWindowExt = 0x20C;
    constexpr int kSetViewportExt = 0x20E;
    constexpr float kViewport = 1024; // what the library maps the window to
    if (content.size() < kHeaders || !std::equal(kKey.begin(), kKey.end(), content.begin())) {
        return std::nullopt;
    }
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    for (std::size_t at = kHeaders; at + 10 <= content.size();) {
        const std::size_t words = content[at] | content[at + 1] << 8 | content[at + 2] << 16;
        const int function = number(content, at + 4);
        if (function == kSetViewportExt) {
            return std::nullopt;
        }
        if (function == kSetWindowOrg) {
            top = number(content, at + 6);
            left = number(content, at + 8);
        } else if (function == kSetWindowExt && width == 0) {
            height = number(content, at + 6);
            width = number(content, at + 8);
        }
        at += 2 * std::max<std::size_t>(words, 3);
    }
    if (width == 0 || height == 0) {
        return std::nullopt;
    }
    const auto x = [&](std::size_t at) {
        return kViewport * static_cast<float>(number(content, at) - left) / static_cast<float>(width);
    };
    const auto y = [&](std::size_t at) {
        return kViewport * static_cast<float>(number(content, at) - top) / static_cast<float>(height);
    };
    const wmfD_Rect box{{x(6), y(8)}, {x(10), y(12)}};
    return box.TL.x < box.BR.x && box.TL.y < box.BR.y ? std::optional(box) : std::nullopt;
}

bool chooseSize(wmfAPI *api, wmf_gd_t &device) {
    unsigned int width = 0;
    unsigned int height = 0;
    if (wmf_display_size(api, &width, &height, kDotsPerInch, kDotsPerInch) != wmf_E_None || width == 0 ||
        height == 0) {
        return false;
    }
    const double factor = std::min(1.0, kLargestSide / std::max(width, height));
    device.width = static_cast<unsigned int>(std::max(1.0, std::floor(width * factor)));
    device.height = static_cast<unsigned int>(std::max(1.0, std::floor(height * factor)));
    return true;
}

bool writePicture(const wmf_gd_t &device) {
    const std::array<std::uint32_t, 2> size{device.width, device.height};
    const int *const pixels = wmf_gd_image_pixels(device.gd_image);
    if (pixels == nullptr || std::fwrite(size.data(), sizeof size, 1, stdout) != 1) {
        return false;
    }
    const std::size_t count = std::size_t{device.width} * device.height;
    std::vector<std::uint32_t> opaque(count);
    std::transform(pixels, pixels + count, opaque.begin(),
                   [](int pixel) { return static_cast<std::uint32_t>(pixel) | 0xFF000000U; });
    return std::fwrite(opaque.data(), sizeof(std::uint32_t), count, stdout) == count &&
           std::fflush(stdout) == 0;
}

bool draw(std::vector<unsigned char> &content) {
    const Api api = openApi();
    wmfD_Rect box{};
    if (!api || wmf_mem_open(api.get(), content.data(), static_cast<long>(content.size())) != wmf_E_None ||
        wmf_scan(api.get(), 0, &box) != wmf_E_None) {
        return false;
    }
    wmf_gd_t &device = *WMF_GD_GetData(api.get());
    device.type = wmf_gd_image;
    box = declaredBox(content).value_or(box);
    device.bbox = box;
    return chooseSize(api.get(), device) && wmf_play(api.get(), 0, &box) == wmf_E_None &&
           device.gd_image != nullptr && writePicture(device);
}

} // namespace

int main() {
    limitResources();
    auto content = readInput();
    return content && draw(*content) ? EXIT_SUCCESS : EXIT_FAILURE;
}
