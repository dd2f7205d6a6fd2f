# shellcheck shell=sh
# Changes the resources in the working directory to texts that would do harm in a careless report.
sed -i '0,/#0b7a75/s//#330000ff/; 0,/^Text=/s//<script>alert(1)<\/script>=/' colors.ini
sed -i '0,/Inter/s//"><script>alert(1)<\/script>/' fonts.ini
sed -i 's/"lock"/"<b onclick='"'alert(1)'"'>"/' icons/mapping.json
sed -i 's,"day/home.svg","day/up.svg",' icons/mapping.json
cat > texts/de.json <<'END'
{
  "text://Home/Title": "<img src=x onerror=alert(1)>\"&amp;",
  "text://Home/RoomTemperature": "\u202egnp.exe\u202c",
  "text://Home/TargetTemperature": "%1 %2",
  "text://Home/OutdoorTemperature": "]]>-->"
}
END
