// Which field of the controller holds which colour of the scheme.
#pragma once

#include "app/AppDelegate.h"
#include "ui/ColourScheme.h"

#include <array>

struct ColourField {
    ColourScheme::Role role;
    QColor AppDelegate::*field;
};

/// In the order in which they are loaded, stored and shown.
inline constexpr std::array colourFields{
    ColourField{ ColourScheme::Role::TableBackground, &AppDelegate::colorTableBackground },
    ColourField{ ColourScheme::Role::TableForeground, &AppDelegate::colorTableForeground },
    ColourField{ ColourScheme::Role::Toolbar, &AppDelegate::colorToolbar },
    ColourField{ ColourScheme::Role::BottomBar, &AppDelegate::colorBottomBar },
    ColourField{ ColourScheme::Role::SpaceOccupiedBar, &AppDelegate::colorSpaceOccupiedBar },
};
