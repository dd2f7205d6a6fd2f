# shellcheck shell=sh
chmod 640 colors.ini
chmod 750 icons/day
