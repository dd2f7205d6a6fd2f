// The levels of the air, from good to poor.
export const levels = [
    { limit: 800, text: "text://Air/Good", color: "AirGood" },
    { limit: 1400, text: "text://Air/Moderate", color: "Warning" },
    { limit: Infinity, text: "text://Air/Poor", color: "AirPoor" }
];

export function level(value) {
    for (const entry of levels) {
        if (value < entry.limit)
            return entry;
    }
    return levels[levels.length - 1];
}

export default class Reading {
    constructor(title, value) {
        this.title = title;
        this.value = value;
    }

    label(texts) {
        return texts[this.title];
    }
}

export function readings() {
    return [
        new Reading("text://Home/RoomTemperature", "22.4"),
        new Reading("text://Home/OutdoorTemperature", "9.1"),
        new Reading("text://Home/Humidity", "46")
    ];
}
