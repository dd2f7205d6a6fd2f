class Tool {
    constructor(key) { this.key = key }
    show() { return Ui.colors.getColor("Day", this.key) }
}
function apply(key) { return Ui.colors.getColor("Day", key) }
