#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs a build, builds a small host against it and looks at the file that the host exports.
#
#   host_test.sh BUILD_DIR WORK_DIR CMAKE COMPILER FLAGS
set -euo pipefail

build=$1 work=$2 cmake=$3 compiler=$4 flags=$5
prefix=$work/prefix
here=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")

fail()
{
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}

# Whether the program is linked with the installed library. What ldd says is read to its end first:
# it fails when the one that reads it goes before.
links_installed()
{
    local linked
    linked=$(ldd "$1")
    [[ $linked == *"=> $prefix/"* ]]
}

rm -rf -- "$prefix" "$work/out"
"$cmake" --install "$build" --prefix "$prefix" >"$work/install.log"

# A host elsewhere finds all that it needs in the prefix, and nothing of the build beside it.
"$cmake" -G Ninja -S "$here/host" -B "$work/host" -DCMAKE_CXX_COMPILER="$compiler" \
    -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_PREFIX_PATH="$prefix" >"$work/host.log"
"$cmake" --build "$work/host" >>"$work/host.log" || { cat "$work/host.log"; fail "the host does not build"; }
links_installed "$work/host/host" || fail "the host runs with another library"
if grep -rlF -e "$build" "$prefix" --include='*.cmake' --include='*.h'; then
    fail "these files name the folder of the build"
fi

# Files for other programs have the same digits where people write others.
mkdir "$work/out"
LC_ALL=ar_EG.UTF-8 QT_QPA_PLATFORM=offscreen "$work/host/host" "$work/out" 2>"$work/host.log" \
    || { cat "$work/host.log"; fail "the host does not run"; }
for file in "CSV/Mia's Contacts for Google.csv" "CSV/Mia's Contacts in common use.csv" VCF/Mia.vcf \
    "VCF/Mia's Contacts for iCloud.vcf"; do
    grep -qF -e -04-12 "$work/out/Contacts/$file" || fail "the date is not in '$file'"
done

csv="$work/out/Messages/Mia's Messages.csv"
[ -f "$csv" ] || fail "there is no '$csv'"
iconv -f UTF-16 -t UTF-8 "$csv" | grep -qF '"Received","See you at Luna?"' \
    || fail "the message is not in '$csv'"

program=$prefix/bin/dataexport
if [ -e "$program" ]; then
    "$program" --help >/dev/null || fail "the installed program does not run"
    links_installed "$program" || fail "the installed program runs with another library"
    languages=$("$program" list --language none "$work" 2>&1 || true)
    [[ $languages == *" de, en, "* ]] || fail "the installed program has no translations: $languages"
fi
[ -f "$prefix/share/doc/DataExport/LICENSE" ] || fail "there is no licence"
for image in deleted.png message-top-l.png default/contact_person.png; do
    [ -s "$prefix/share/dataexport/DataExport/$image" ] || fail "there is no image $image"
done
drawings=$(find "$prefix" -name '*.svg')
[ -z "$drawings" ] || fail "these are sources of images: $drawings"
