#include "ui/DesktopColours.h"

#include <array>

namespace {

struct Row {
    QPalette::ColorRole role;
    QRgb dark;
    QRgb light;
    QRgb darkDisabled; ///< 0: as it is enabled
    QRgb lightDisabled;
};

constexpr std::array rows{
    Row{ QPalette::Window, 0xff2d2d2d, 0xffefefef, 0, 0 },
    Row{ QPalette::WindowText, 0xfff0f0f0, 0xff000000, 0xff8c8c8c, 0xff8c8c8c },
    Row{ QPalette::Base, 0xff1e1e1e, 0xffffffff, 0xff2d2d2d, 0xffefefef },
    Row{ QPalette::AlternateBase, 0xff2a2a2a, 0xfff4f4f4, 0, 0 },
    Row{ QPalette::Text, 0xfff0f0f0, 0xff000000, 0xff8c8c8c, 0xff8c8c8c },
    Row{ QPalette::PlaceholderText, 0xffa0a0a0, 0xff6b6b6b, 0, 0 },
    Row{ QPalette::Button, 0xff3a3a3a, 0xffefefef, 0, 0 },
    Row{ QPalette::ButtonText, 0xfff0f0f0, 0xff000000, 0xff8c8c8c, 0xff8c8c8c },
    Row{ QPalette::BrightText, 0xffffffff, 0xffffffff, 0, 0 },
    Row{ QPalette::Highlight, 0xff2a6cb0, 0xff2a6cb0, 0xff4a4a4a, 0xffb0b0b0 },
    Row{ QPalette::HighlightedText, 0xffffffff, 0xffffffff, 0xff8c8c8c, 0xffefefef },
    Row{ QPalette::Link, 0xff7ab4f5, 0xff1a5fb4, 0, 0 },
    Row{ QPalette::LinkVisited, 0xffc8a0f0, 0xff6b3fa0, 0, 0 },
    Row{ QPalette::ToolTipBase, 0xff3a3a3a, 0xffffffdc, 0, 0 },
    Row{ QPalette::ToolTipText, 0xfff0f0f0, 0xff000000, 0, 0 },
    // Of bevels and rims.
    Row{ QPalette::Light, 0xff505050, 0xffffffff, 0, 0 },
    Row{ QPalette::Midlight, 0xff444444, 0xffcacaca, 0, 0 },
    Row{ QPalette::Mid, 0xff262626, 0xffb8b8b8, 0, 0 },
    Row{ QPalette::Dark, 0xff1c1c1c, 0xff9f9f9f, 0, 0 },
    Row{ QPalette::Shadow, 0xff000000, 0xff767676, 0, 0 },
};

} // namespace

QPalette desktopColours(bool dark)
{
    QPalette palette;
    for (const auto &row : rows) {
        const QRgb enabled = dark ? row.dark : row.light;
        const QRgb disabled = dark ? row.darkDisabled : row.lightDisabled;
        palette.setColor(row.role, QColor::fromRgb(enabled));
        if (disabled != 0)
            palette.setColor(QPalette::Disabled, row.role, QColor::fromRgb(disabled));
    }
    return palette;
}
