.pragma library

var scheme = "text://";

function text(group, name) {
    return scheme + group + "/" + name;
}

function joined(group, key) {
    return [group, key].join("/");
}

function capitalized(word) {
    return word.charAt(0).toUpperCase() + word.slice(1);
}
