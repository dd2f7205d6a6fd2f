Tile {
    alias: "minuss" // unknown minuss
}
