#include "ListKinds.h"

#include <algorithm>
#include <array>

namespace platform::richtext {

namespace {

constexpr std::array kForms{
    ListForm{ListKind::Bullet, QTextListFormat::ListDisc, "pnlvlblt"},
    ListForm{ListKind::Decimal, QTextListFormat::ListDecimal, "pndec"},
    ListForm{ListKind::LowerLetter, QTextListFormat::ListLowerAlpha, "pnlcltr"},
    ListForm{ListKind::UpperLetter, QTextListFormat::ListUpperAlpha, "pnucltr"},
    ListForm{ListKind::LowerRoman, QTextListFormat::ListLowerRoman, "pnlcrm"},
    ListForm{ListKind::UpperRoman, QTextListFormat::ListUpperRoman, "pnucrm"},
};

template <typename Value>
const ListForm &findForm(Value ListForm::*member, Value value) {
    const auto has = [&](const ListForm &form) { return form.*member == value; };
    const auto *found = std::find_if(kForms.begin(), kForms.end(), has);
    return found == kForms.end() ? kForms.front() : *found;
}

} // namespace

const ListForm &listForm(ListKind kind) {
    return findForm(&ListForm::kind, kind);
}

const ListForm &listForm(QTextListFormat::Style style) {
    return findForm(&ListForm::style, style);
}

ListKind kindOfMarker(QStringView marker) {
    const QStringView sign = marker.trimmed();
    if (sign.isEmpty()) {
        return ListKind::None;
    }
    if (std::any_of(sign.begin(), sign.end(), [](QChar c) { return c.isDigit(); })) {
        return ListKind::Decimal;
    }
    const bool punctuated = sign.endsWith(u'.') || sign.endsWith(u')');
    const auto letter = std::find_if(sign.begin(), sign.end(), [](QChar c) { return c.isLetter(); });
    if (!punctuated || letter == sign.end()) {
        return ListKind::Bullet;
    }
    return letter->isUpper() ? ListKind::UpperLetter : ListKind::LowerLetter;
}

} // namespace platform::richtext
