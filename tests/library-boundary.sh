#!/usr/bin/env bash
# Checks what libTarnisLibrary.so needs, exports and leaves to the host: library-boundary.sh LIBRARY
set -euo pipefail
library=$1

needed=$(readelf -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
allowed='libQt5(Core|DBus|Gui)\.so\.5|libstdc\+\+\.so\.6|libgcc_s\.so\.1|libc\.so\.6'
grep -q libasan <<<"$needed" && allowed+='|lib(asan|ubsan|m)\.so\.[0-9]+' # a build with sanitizers
foreign=$(grep -vE "^($allowed)\$" <<<"$needed" || true)
[ -z "$foreign" ] || { echo "needs more than Qt and the C++ runtime: $foreign"; exit 1; }

classes=$(nm -DC --defined-only "$library" | sed -nE 's/^[0-9a-f]+ [A-Za-z] (vtable for |typeinfo for |typeinfo name for )?(\w+).*/\2/p' |
  grep -E '^[A-Z]' | grep -vE '^Q' | sort -u | tr '\n' ' ')
expected='TarnisColorHandler TarnisDefinitions TarnisDeviceUiResourcesDBusConnector TarnisElementDimensionHandler TarnisFontHandler TarnisIconHandler TarnisIconProviderDBusConnector TarnisTextHandler '
[ "$classes" = "$expected" ] || { echo "exports the classes: $classes"; exit 1; }

undefined=$(nm -DC --undefined-only "$library")
for symbol in 'DBusConnectorBase::DBusConnectorBase' 'operator>>(QDBusArgument const&, DBusReply&)' \
  'ErrorContainer::getErrorMessage' 'IniFileManager::IniFileManager' 'TextManagerBase::staticMetaObject' \
  'LanguageDefinitions::getSecondFallbackLanguageFilename'; do
  grep -qF "$symbol" <<<"$undefined" || { echo "does not take from the host: $symbol"; exit 1; }
done
if nm -DC --defined-only "$library" | grep -F syncCallHelper; then
  echo "exports an instantiation of syncCallHelper"
  exit 1
fi
