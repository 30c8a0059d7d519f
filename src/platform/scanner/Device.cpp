#include "Device.h"

#include "FrameAssembler.h"
#include "Sane.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <sane/saneopts.h>
#include <thread>
#include <vector>

namespace platform::scanner {

namespace {

constexpr std::array kUsualResolutions{75.0, 100.0, 150.0, 200.0, 300.0, 400.0, 600.0, 1200.0};
constexpr std::size_t kBuffer = 65'536;
// A driver waits until it has something to give. Some that have lost their device never give anything.
constexpr int kEmptyReads = 1000;
constexpr std::chrono::milliseconds kPause{10}; // after each

void check(SANE_Status status) {
    if (status != SANE_STATUS_GOOD) {
        throw ScannerError(status);
    }
}

bool isNumber(const SANE_Option_Descriptor &option) {
    return (option.type == SANE_TYPE_INT || option.type == SANE_TYPE_FIXED) &&
           option.size == sizeof(SANE_Word);
}

double fromWord(const SANE_Option_Descriptor &option, SANE_Word word) {
    return option.type == SANE_TYPE_FIXED ? SANE_UNFIX(word) : word;
}

SANE_Word toWord(const SANE_Option_Descriptor &option, double value) {
    return option.type == SANE_TYPE_FIXED ? SANE_FIX(value) : static_cast<SANE_Word>(std::lround(value));
}

bool isRange(const SANE_Option_Descriptor &option) {
    return isNumber(option) && option.constraint_type == SANE_CONSTRAINT_RANGE;
}

double least(const SANE_Option_Descriptor &option) {
    return fromWord(option, option.constraint.range->min);
}

double largest(const SANE_Option_Descriptor &option) {
    return fromWord(option, option.constraint.range->max);
}

} // namespace

Device::Device(const QString &name) {
    check(sane().open(name.toUtf8().constData(), &m_handle));
}

Device::~Device() {
    sane().close(m_handle);
}

std::optional<Device::Option> Device::find(const char *name) const {
    // Option 0 holds their number; setting one option may change the others.
    for (SANE_Int index = 1;; ++index) {
        const SANE_Option_Descriptor *option = sane().get_option_descriptor(m_handle, index);
        if (option == nullptr) {
            return std::nullopt;
        }
        if (option->name != nullptr && qstrcmp(option->name, name) == 0) {
            const bool usable = SANE_OPTION_IS_ACTIVE(option->cap) && SANE_OPTION_IS_SETTABLE(option->cap);
            return usable ? std::optional(Option{index, option}) : std::nullopt;
        }
    }
}

QStringList Device::texts(const char *name) const {
    QStringList values;
    const auto option = find(name);
    if (option && option->descriptor->type == SANE_TYPE_STRING &&
        option->descriptor->constraint_type == SANE_CONSTRAINT_STRING_LIST) {
        for (auto *value = option->descriptor->constraint.string_list; *value != nullptr; ++value) {
            values.append(QString::fromUtf8(*value));
        }
    }
    return values;
}

QString Device::text(const char *name) const {
    const auto option = find(name);
    if (!option || option->descriptor->type != SANE_TYPE_STRING) {
        return {};
    }
    std::vector<char> value(static_cast<std::size_t>(option->descriptor->size) + 1);
    check(sane().control_option(m_handle, option->index, SANE_ACTION_GET_VALUE, value.data(), nullptr));
    return QString::fromUtf8(value.data());
}

QList<double> Device::resolutions() const {
    QList<double> values;
    const auto option = find(SANE_NAME_SCAN_RESOLUTION);
    if (!option || !isNumber(*option->descriptor)) {
        return values;
    }
    const SANE_Option_Descriptor &descriptor = *option->descriptor;
    if (isRange(descriptor)) {
        std::copy_if(
            kUsualResolutions.begin(), kUsualResolutions.end(), std::back_inserter(values),
            [&](double value) { return value >= least(descriptor) && value <= largest(descriptor); });
    } else if (descriptor.constraint_type == SANE_CONSTRAINT_WORD_LIST) {
        const SANE_Word *list = descriptor.constraint.word_list; // begins with its length
        std::transform(list + 1, list + 1 + list[0], std::back_inserter(values),
                       [&](SANE_Word word) { return fromWord(descriptor, word); });
    }
    return values;
}

double Device::number(const Option &option) const {
    SANE_Word word = 0;
    check(sane().control_option(m_handle, option.index, SANE_ACTION_GET_VALUE, &word, nullptr));
    return fromWord(*option.descriptor, word);
}

QSizeF Device::glass() const {
    const auto right = find(SANE_NAME_SCAN_BR_X);
    const auto bottom = find(SANE_NAME_SCAN_BR_Y);
    const auto left = find(SANE_NAME_SCAN_TL_X);
    const auto top = find(SANE_NAME_SCAN_TL_Y);
    for (const auto &edge : {right, bottom, left, top}) {
        if (!edge || !isRange(*edge->descriptor)) {
            return {};
        }
    }
    return {largest(*right->descriptor) - least(*left->descriptor),
            largest(*bottom->descriptor) - least(*top->descriptor)};
}

ScanOptions Device::options() const {
    ScanOptions options;
    options.sources = texts(SANE_NAME_SCAN_SOURCE);
    options.modes = texts(SANE_NAME_SCAN_MODE);
    options.resolutions = resolutions();
    options.glass = glass();
    options.current.source = text(SANE_NAME_SCAN_SOURCE);
    options.current.mode = text(SANE_NAME_SCAN_MODE);
    const auto resolution = find(SANE_NAME_SCAN_RESOLUTION);
    if (resolution && isNumber(*resolution->descriptor)) {
        options.current.resolution = number(*resolution);
    }
    return options;
}

void Device::control(const Option &option, void *value) {
    check(sane().control_option(m_handle, option.index, SANE_ACTION_SET_VALUE, value, nullptr));
}

void Device::set(const char *name, const QString &value) {
    const auto option = find(name);
    if (!option || option->descriptor->type != SANE_TYPE_STRING || value.isEmpty()) {
        return;
    }
    // The driver may read as many bytes as the option is long, and may write there.
    QByteArray bytes = value.toUtf8();
    bytes.append(std::max<qsizetype>(option->descriptor->size - bytes.size(), 0) + 1, '\0');
    control(*option, bytes.data());
}

void Device::set(const char *name, double value) {
    const auto option = find(name);
    if (option && isNumber(*option->descriptor)) {
        SANE_Word word = toWord(*option->descriptor, value);
        control(*option, &word);
    }
}

void Device::set(const char *name, bool value) {
    const auto option = find(name);
    if (option && option->descriptor->type == SANE_TYPE_BOOL) {
        SANE_Bool word = value ? SANE_TRUE : SANE_FALSE;
        control(*option, &word);
    }
}

void Device::setArea(const QRectF &area) {
    const QSizeF whole = glass();
    if (whole.isEmpty()) {
        return;
    }
    const double left = least(*find(SANE_NAME_SCAN_TL_X)->descriptor);
    const double top = least(*find(SANE_NAME_SCAN_TL_Y)->descriptor);
    set(SANE_NAME_SCAN_TL_X, left + area.left() * whole.width());
    set(SANE_NAME_SCAN_TL_Y, top + area.top() * whole.height());
    set(SANE_NAME_SCAN_BR_X, left + area.right() * whole.width());
    set(SANE_NAME_SCAN_BR_Y, top + area.bottom() * whole.height());
}

void Device::apply(const ScanSettings &settings) {
    set(SANE_NAME_SCAN_SOURCE, settings.source);
    set(SANE_NAME_SCAN_MODE, settings.mode);
    if (settings.resolution > 0) {
        set(SANE_NAME_SCAN_RESOLUTION, settings.resolution);
    }
    set(SANE_NAME_PREVIEW, settings.preview);
    setArea(settings.area);
}

bool Device::readFrame(FrameAssembler &assembler, const Progress &progress) {
    std::vector<SANE_Byte> buffer(kBuffer);
    int emptyReads = 0;
    while (progress(assembler.progress())) {
        SANE_Int length = 0;
        const SANE_Status status =
            sane().read(m_handle, buffer.data(), static_cast<SANE_Int>(buffer.size()), &length);
        if (status == SANE_STATUS_EOF) {
            return true;
        }
        check(status);
        assembler.add(buffer.data(), static_cast<std::size_t>(length));
        if (length > 0) {
            emptyReads = 0;
        } else if (++emptyReads < kEmptyReads) {
            std::this_thread::sleep_for(kPause);
        } else {
            throw ScannerError(SANE_STATUS_IO_ERROR);
        }
    }
    return false;
}

QImage Device::scan(const Progress &progress) {
    // Ends a scan that is complete as well as one that is not.
    const auto end = qScopeGuard([this] { sane().cancel(m_handle); });
    FrameAssembler assembler;
    SANE_Parameters frame{};
    do {
        check(sane().start(m_handle));
        check(sane().get_parameters(m_handle, &frame));
        assembler.begin(frame);
        if (!readFrame(assembler, progress)) {
            return {};
        }
    } while (frame.last_frame == SANE_FALSE);
    QImage picture = assembler.picture();
    if (picture.isNull()) {
        throw ScannerError(SANE_STATUS_IO_ERROR);
    }
    return picture;
}

} // namespace platform::scanner
