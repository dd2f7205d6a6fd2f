# shellcheck shell=sh
rm texts/en.json
