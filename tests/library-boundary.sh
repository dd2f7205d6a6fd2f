#!/usr/bin/env bash
# Checks what libTarnisLibrary.so needs, exports and takes from the host: library-boundary.sh LIBRARY
set -euo pipefail
. "$(dirname "$0")/../scripts/lib/common.sh"
library=$1

needed=$(readelf -d "$library" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
allowed='libQt([56])(Core|DBus|Gui)\.so\.\2|libstdc\+\+\.so\.6|libgcc_s\.so\.1|libc\.so\.6'
grep -q libasan <<<"$needed" && allowed+='|lib(asan|ubsan|m)\.so\.[0-9]+' # a build with sanitizers
foreign=$(grep -vE "^($allowed)\$" <<<"$needed" || true)
[ -z "$foreign" ] || fail "needs more than Qt and the C++ runtime: $foreign"

classes=$(nm -DC --defined-only "$library" | sed -nE 's/^[0-9a-f]+ [A-Za-z] (vtable for |typeinfo for |typeinfo name for )?(\w+).*/\2/p' |
  grep -E '^[A-Z]' | grep -vE '^Q' | sort -u | tr '\n' ' ')
expected='TarnisColorHandler TarnisDefinitions TarnisDeviceUiResourcesDBusConnector TarnisElementDimensionHandler TarnisFontHandler TarnisIconHandler TarnisIconProviderDBusConnector TarnisTextHandler '
[ "$classes" = "$expected" ] || fail "exports the classes: $classes"$'\n'"instead of: $expected"

undefined=$(nm -DC --undefined-only "$library")
for symbol in 'DBusConnectorBase::DBusConnectorBase' 'operator>>(QDBusArgument const&, DBusReply&)' \
  'ErrorContainer::getErrorMessage' 'IniFileManager::IniFileManager' 'TextManagerBase::staticMetaObject' \
  'LanguageDefinitions::getSecondFallbackLanguageFilename'; do
  grep -qF "$symbol" <<<"$undefined" || fail "does not take from the host: $symbol"
done
! nm -DC --defined-only "$library" | grep -F syncCallHelper || fail "exports an instantiation of syncCallHelper"
