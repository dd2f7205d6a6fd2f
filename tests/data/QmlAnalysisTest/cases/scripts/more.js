var other = "Oother" // unknown Day/Oother
