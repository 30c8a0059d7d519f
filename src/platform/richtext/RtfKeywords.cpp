#include "RtfKeywords.h"

#include "RichContent.h"
#include "RtfTables.h"

#include <algorithm>
#include <array>

namespace platform::richtext {

namespace {

constexpr std::array kKeywords{
    Keyword{u"aftncn", Action::SkipGroup},
    Keyword{u"aftnsep", Action::SkipGroup},
    Keyword{u"aftnsepc", Action::SkipGroup},
    Keyword{u"annotation", Action::SkipGroup},
    Keyword{u"ansi", Action::CodePage, 1252},
    Keyword{u"ansicpg", Action::CodePage},
    Keyword{u"atnauthor", Action::SkipGroup},
    Keyword{u"atnid", Action::SkipGroup},
    Keyword{u"b", Action::Bold},
    Keyword{u"background", Action::SkipGroup},
    Keyword{u"bin", Action::Binary},
    Keyword{u"bkmkend", Action::SkipGroup},
    Keyword{u"bkmkstart", Action::SkipGroup},
    Keyword{u"blue", Action::ColourComponent, ColourTable::Blue},
    Keyword{u"bullet", Action::Character, 0x2022},
    Keyword{u"cb", Action::Background},
    Keyword{u"cell", Action::Character, u'\t'},
    Keyword{u"cf", Action::Foreground},
    Keyword{u"chcbpat", Action::Background},
    Keyword{u"colortbl", Action::Destination, int(Destination::Colours)},
    Keyword{u"deff", Action::DefaultFont},
    Keyword{u"emdash", Action::Character, 0x2014},
    Keyword{u"emspace", Action::Character, 0x2003},
    Keyword{u"endash", Action::Character, 0x2013},
    Keyword{u"enspace", Action::Character, 0x2002},
    Keyword{u"f", Action::Font},
    Keyword{u"falt", Action::SkipGroup},
    Keyword{u"fcharset", Action::Charset},
    Keyword{u"fi", Action::FirstLine},
    Keyword{u"filetbl", Action::SkipGroup},
    Keyword{u"fldinst", Action::SkipGroup},
    Keyword{u"fontemb", Action::SkipGroup},
    Keyword{u"fonttbl", Action::Destination, int(Destination::Fonts)},
    Keyword{u"footer", Action::SkipGroup},
    Keyword{u"footerf", Action::SkipGroup},
    Keyword{u"footerl", Action::SkipGroup},
    Keyword{u"footerr", Action::SkipGroup},
    Keyword{u"footnote", Action::SkipGroup},
    Keyword{u"fs", Action::FontSize},
    Keyword{u"ftncn", Action::SkipGroup},
    Keyword{u"ftnsep", Action::SkipGroup},
    Keyword{u"ftnsepc", Action::SkipGroup},
    Keyword{u"green", Action::ColourComponent, ColourTable::Green},
    Keyword{u"header", Action::SkipGroup},
    Keyword{u"headerf", Action::SkipGroup},
    Keyword{u"headerl", Action::SkipGroup},
    Keyword{u"headerr", Action::SkipGroup},
    Keyword{u"highlight", Action::Background},
    Keyword{u"i", Action::Italic},
    Keyword{u"info", Action::SkipGroup},
    Keyword{u"ldblquote", Action::Character, 0x201C},
    Keyword{u"li", Action::Left},
    Keyword{u"line", Action::Character, QChar::LineSeparator},
    Keyword{u"listoverridetable", Action::SkipGroup},
    Keyword{u"listtable", Action::SkipGroup},
    Keyword{u"listtext", Action::Destination, int(Destination::Marker)},
    Keyword{u"lquote", Action::Character, 0x2018},
    Keyword{u"ltrmark", Action::Character, 0x200E},
    Keyword{u"mac", Action::CodePage, 10000},
    Keyword{u"nonshppict", Action::SkipGroup},
    Keyword{u"object", Action::SkipGroup},
    Keyword{u"par", Action::ParagraphEnd},
    Keyword{u"pard", Action::ParagraphReset},
    Keyword{u"pc", Action::CodePage, 437},
    Keyword{u"pca", Action::CodePage, 850},
    Keyword{u"pict", Action::SkipGroup},
    Keyword{u"plain", Action::Plain},
    Keyword{u"pn", Action::Destination, int(Destination::Numbering)},
    Keyword{u"pndec", Action::Numbering, int(ListKind::Decimal)},
    Keyword{u"pnlcltr", Action::Numbering, int(ListKind::LowerLetter)},
    Keyword{u"pnlcrm", Action::Numbering, int(ListKind::LowerRoman)},
    Keyword{u"pnlvlblt", Action::Numbering, int(ListKind::Bullet)},
    Keyword{u"pnlvlbody", Action::Numbering, int(ListKind::Decimal)},
    Keyword{u"pntext", Action::Destination, int(Destination::Marker)},
    Keyword{u"pnucltr", Action::Numbering, int(ListKind::UpperLetter)},
    Keyword{u"pnucrm", Action::Numbering, int(ListKind::UpperRoman)},
    Keyword{u"private", Action::SkipGroup},
    Keyword{u"qc", Action::Alignment, Qt::AlignHCenter},
    Keyword{u"qj", Action::Alignment, Qt::AlignJustify},
    Keyword{u"ql", Action::Alignment, Qt::AlignLeft},
    Keyword{u"qmspace", Action::Character, 0x2005},
    Keyword{u"qr", Action::Alignment, Qt::AlignRight},
    Keyword{u"rdblquote", Action::Character, 0x201D},
    Keyword{u"red", Action::ColourComponent, ColourTable::Red},
    Keyword{u"revtbl", Action::SkipGroup},
    Keyword{u"ri", Action::Right},
    Keyword{u"row", Action::ParagraphEnd},
    Keyword{u"rquote", Action::Character, 0x2019},
    Keyword{u"rsidtbl", Action::SkipGroup},
    Keyword{u"rtlmark", Action::Character, 0x200F},
    Keyword{u"rxe", Action::SkipGroup},
    Keyword{u"sa", Action::After},
    Keyword{u"sb", Action::Before},
    Keyword{u"sect", Action::ParagraphEnd},
    Keyword{u"strike", Action::Strike},
    Keyword{u"striked", Action::Strike},
    Keyword{u"stylesheet", Action::SkipGroup},
    Keyword{u"tab", Action::Character, u'\t'},
    Keyword{u"tc", Action::SkipGroup},
    Keyword{u"template", Action::SkipGroup},
    Keyword{u"tqc", Action::TabType, QTextOption::CenterTab},
    Keyword{u"tqdec", Action::TabType, QTextOption::DelimiterTab},
    Keyword{u"tqr", Action::TabType, QTextOption::RightTab},
    Keyword{u"tx", Action::TabStop},
    Keyword{u"txe", Action::SkipGroup},
    Keyword{u"u", Action::Unicode},
    Keyword{u"uc", Action::FallbackLength},
    Keyword{u"ul", Action::Underline},
    Keyword{u"uld", Action::Underline},
    Keyword{u"uldash", Action::Underline},
    Keyword{u"uldashd", Action::Underline},
    Keyword{u"uldashdd", Action::Underline},
    Keyword{u"uldb", Action::Underline},
    Keyword{u"ulnone", Action::NoUnderline},
    Keyword{u"ulth", Action::Underline},
    Keyword{u"ulw", Action::Underline},
    Keyword{u"ulwave", Action::Underline},
    Keyword{u"xe", Action::SkipGroup},
    Keyword{u"zwj", Action::Character, 0x200D},
    Keyword{u"zwnj", Action::Character, 0x200C},
};

constexpr bool comesBefore(const Keyword &left, const Keyword &right) {
    return left.name < right.name;
}

} // namespace

const Keyword *findKeyword(QStringView name) {
    static_assert(std::is_sorted(kKeywords.begin(), kKeywords.end(), comesBefore), "searched by halves");
    const Keyword wanted{std::u16string_view(name.utf16(), size_t(name.size())), Action::Character};
    const auto *found = std::lower_bound(kKeywords.begin(), kKeywords.end(), wanted, comesBefore);
    return found != kKeywords.end() && found->name == wanted.name ? found : nullptr;
}

} // namespace platform::richtext
