# shellcheck shell=sh
ln -s /etc/hostname icons/day/away.svg
