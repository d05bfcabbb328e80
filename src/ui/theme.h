#pragma once

#include <QColor>
#include <QWidget>

// Colours by meaning, for a light and a dark palette. Everything else takes the palette's own.

namespace verandis {

/// True when the widget shows light text on a dark ground.
bool IsDark(const QWidget& widget);

enum class Tint {
    Building,      // opaque parts of the plan
    BuildingEdge,  // their outline
    Glass,         // the glazed space
    GlassEdge,
    Muted,     // remarks, guide lines
    Accent,    // what is active
    Judged,    // blue: the value that is being judged
    Redesign,  // red
    Accepted   // green
};

/// The colour of a meaning, readable on the widget's ground.
QColor TintOf(Tint tint, const QWidget& widget);

}  // namespace verandis
