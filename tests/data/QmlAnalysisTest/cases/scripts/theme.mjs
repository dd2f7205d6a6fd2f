import { key as alarm } from "./keys.mjs"

export function dark(key) {
    return Ui.colors.getColor("Night", key)
}

export const names = { alarm: dark(alarm) }
