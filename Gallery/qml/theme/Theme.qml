pragma Singleton

import QtQuick 2.15
import Tarnis.Gallery 1.0

// The look of the gallery itself. Every color of text has a contrast of at least 4.5:1 on `window`, `surface` and
// `bar`; lengths and font sizes are pixels.
QtObject {
    readonly property bool isDark: View.theme === "dark"

    readonly property int tiny: 4
    readonly property int small: 8
    readonly property int medium: 12
    readonly property int large: 16
    readonly property int radius: 4
    readonly property int controlHeight: 32
    readonly property int rowHeight: 36

    readonly property int captionSize: 12
    readonly property int bodySize: 13
    readonly property int titleSize: 17

    readonly property color window: isDark ? "#14181d" : "#ffffff"
    readonly property color surface: isDark ? "#1e242b" : "#f5f7f9"
    readonly property color bar: isDark ? "#232a32" : "#e4e8ec"
    readonly property color line: isDark ? "#3a444f" : "#c9d0d8"
    readonly property color text: isDark ? "#e8edf2" : "#101820"
    readonly property color textSecondary: isDark ? "#a9b4c0" : "#4a5561"
    readonly property color accent: isDark ? "#7db5f5" : "#1a5fb4"
    readonly property color textOnAccent: isDark ? "#0b1a2a" : "#ffffff"
    readonly property color pressed: isDark ? "#323c47" : "#d0dae4"
    readonly property color selected: isDark ? "#2b3a4c" : "#d5e3f5"
    readonly property color error: isDark ? "#ff8a80" : "#b3261e"
    readonly property color textOnError: isDark ? "#2b0907" : "#ffffff"
    readonly property color errorSurface: isDark ? "#4a1512" : "#fde7e7"
    readonly property color textOnErrorSurface: isDark ? "#ffd9d5" : "#8c1d18"
    readonly property color warning: isDark ? "#f2b763" : "#7a4a00"
    // What icons are shown on, in every theme.
    readonly property color lightBackdrop: "#f0f2f4"
    readonly property color darkBackdrop: "#202830"
    readonly property color good: isDark ? "#7fd19a" : "#1e6b3a"
}
