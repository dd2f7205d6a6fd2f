import { iconOf } from "./icons.mjs";

const pages = [
    { name: "air", title: "text://Home/AirQuality", icon: iconOf("air") },
    { name: "alarms", title: "text://Dialog/AlarmTitle", icon: iconOf("alarm") },
    { name: "units", title: "text://Settings/Display", icon: iconOf("unit") }
];

export const names = pages.map(page => page.name);

export function all() {
    return pages;
}

export function find(name) {
    return pages.find(page => page.name === name) || pages[0];
}
