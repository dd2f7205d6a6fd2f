ln -s /etc/hostname icons/day/away.svg
