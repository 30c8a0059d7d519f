#pragma once

#include "platform/controls/Keys.h"

#include <array>

namespace browser {

/// The keys of the main window. Those of its lists, which act on a row, are in Operations.cpp. A French keyboard gives
/// the second key of a view where its digit would need Shift.
inline constexpr std::array kTouches{
    platform::controls::KeyRow{"Outils(0)", Qt::CTRL | Qt::Key_N, {}, "LBtn(0)"},
    platform::controls::KeyRow{"Outils(2)", Qt::CTRL | Qt::Key_P, {}, "LBtn(2)"},
    platform::controls::KeyRow{"Outils(4)", Qt::CTRL | Qt::Key_F, {}, "LBtn(4)"},
    platform::controls::KeyRow{"Outils(10)", Qt::Key_F1, {}, "LBtn(10)"},
    platform::controls::KeyRow{"Btn_Quit", Qt::CTRL | Qt::Key_Q},
    platform::controls::KeyRow{"Bouton(0)", Qt::CTRL | Qt::Key_1, Qt::CTRL | Qt::Key_Ampersand},
    platform::controls::KeyRow{"Bouton(1)", Qt::CTRL | Qt::Key_2, Qt::CTRL | Qt::Key_Eacute},
    platform::controls::KeyRow{"Bouton(2)", Qt::CTRL | Qt::Key_3, Qt::CTRL | Qt::Key_QuoteDbl},
    platform::controls::KeyRow{"Bouton(3)", Qt::CTRL | Qt::Key_4, Qt::CTRL | Qt::Key_Apostrophe},
    platform::controls::KeyRow{"Bouton(4)", Qt::CTRL | Qt::Key_5, Qt::CTRL | Qt::Key_ParenLeft},
    platform::controls::KeyRow{"Bouton(5)", Qt::CTRL | Qt::Key_6, Qt::CTRL | Qt::Key_Minus},
    platform::controls::KeyRow{"Bouton(6)", Qt::CTRL | Qt::Key_7, Qt::CTRL | Qt::Key_Egrave},
    platform::controls::KeyRow{"Bouton(7)", Qt::CTRL | Qt::Key_8, Qt::CTRL | Qt::Key_Underscore},
};

} // namespace browser
