# shellcheck shell=sh
chmod 604 colors.ini
chmod 705 icons/day
touch .hidden
chmod 600 .hidden
