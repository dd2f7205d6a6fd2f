export const key = "Alaarm" // unknown Night/Alaarm
