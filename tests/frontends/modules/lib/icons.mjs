const aliases = {
    air: "airQuality",
    alarm: "alarm",
    unit: "settings",
    fan: "fan",
    water: "humidity",
    lamp: "lightOff",
    shade: "blindsUp",
    open: "unlock"
};

const fallback = "information";

export function iconOf(kind) {
    return aliases[kind] ?? fallback;
}

export function iconsOf(...kinds) {
    const found = [];
    for (const kind of kinds)
        found.push(iconOf(kind));
    return found;
}
