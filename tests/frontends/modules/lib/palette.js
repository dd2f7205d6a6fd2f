.pragma library
.import "names.js" as Names

// Groups by the icon context, keys by what they are for.
const themes = {
    defaultContext: "Day",
    nightMode: "Night"
};

const roles = {
    page: "Background",
    title: "Text",
    hint: "TextSecondary",
    line: "Divider",
    button: { up: "SurfaceRaised", down: "SurfacePressed", on: "Accent" },
    good: "AirGood",
    poor: "AirPoor"
};

var fonts = {
    title: { group: "Heading", size: "Page" },
    normal: { group: "Text", size: "Normal" },
    small: { group: "Text", size: "Small" },
    value: { group: "Numeric", size: "Temperature" },
    unit: { group: "Numeric", size: "Unit" }
};

function theme(context) {
    return themes[context] || "Day";
}

function pair(context, role) {
    return [theme(context), roles[role]];
}

// The color handler belongs to the engine, and this library has none.
function color(colors, context, role) {
    const [group, key] = pair(context, role);
    return colors.getColor(group, key);
}

function points(handler, name) {
    const { group, size } = fonts[name];
    return handler.getFontPointSize(group, size);
}

function buttonPair(context, state) {
    const { up, down, on } = roles.button;
    switch (state) {
    case "pressed":
        return [theme(context), down];
    case "current":
        return [theme(context), on];
    default:
        return [theme(context), up];
    }
}

function dimension(group, key) {
    return Names.joined(group, key);
}
