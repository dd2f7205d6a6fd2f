# shellcheck shell=sh
rm fonts.ini
ln -s nowhere dimensions/1024x600.ini
