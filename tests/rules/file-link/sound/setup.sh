# shellcheck shell=sh
ln -s ../icons/day icons/light
ln -s home.svg icons/day/back.svg
ln -s nowhere icons/day/gone.svg
