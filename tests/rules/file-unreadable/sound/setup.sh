# shellcheck shell=sh
ln -s 800x480.ini dimensions/1024x600.ini
