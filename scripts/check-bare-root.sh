#!/usr/bin/env bash
# Runs the two commands of the README on a bare Debian 12, where nothing that was ever installed hides a package that the list
# of dependencies lacks. What is committed counts: a clone of HEAD goes in. Ends with 0 when both commands passed, 1 when one
# failed, 77 when this machine cannot try (not root, no mmdebstrap, no mounts).
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD

cannot() { echo "Not tried on a bare Debian 12: $1" >&2; exit 77; }

if [ "${1:-}" != "--inside" ]; then
  [ "$(id -u)" -eq 0 ] || cannot "this needs root"
  command -v mmdebstrap >/dev/null || cannot "mmdebstrap is missing"
  unshare --mount --pid --fork true 2>/dev/null || cannot "mounts of its own are not allowed here"
  folder=$(mktemp -d /var/tmp/nivra-bare-root.XXXXXX)
  # The mounts and processes live in namespaces of their own and go with them: nothing of this machine is mounted under the
  # folder when it is removed, however this ends.
  inside=
  cleanUp() {
    [ -z "$inside" ] || { kill -KILL "$inside" && wait "$inside"; } 2>/dev/null || true
    for _ in 1 2 3 4 5; do rm -rf --one-file-system "$folder" && break || sleep 1; done
  }
  trap cleanUp EXIT
  trap 'exit 1' HUP INT TERM
  unshare --mount --pid --fork --kill-child --mount-proc "$0" --inside "$folder" &
  inside=$!
  wait "$inside" && status=0 || status=$?
  inside=
  exit "$status"
fi

folder=$2
root=$folder/root
mkdir "$root"
[ -z "$(git status --porcelain --untracked-files=no)" ] || echo "What is not committed is left out"

echo "Building a bare Debian 12"
# The mirror that this machine uses for Debian 12, the usual one otherwise; its proxy likewise.
sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 2>/dev/null |
  grep -E ' bookworm(-updates|-security)? main$' | sort -u || true)
if ! mmdebstrap --quiet --variant=minbase bookworm "$root" ${sources:+-} <<<"$sources" 2>"$folder/log"; then
  cat "$folder/log" >&2
  echo "FAILED: the bare root could not be built" >&2
  exit 1
fi
apt-config dump | grep -iE '^Acquire::https?::Proxy' >"$root/etc/apt/apt.conf.d/99proxy" || true
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
mount -t tmpfs tmpfs "$root/tmp"

# The clone stands where the checkout stands, and the compiler cache is the machine's: the second time compiles little.
mkdir -p "$root$top" "$root/root/.ccache"
git clone --quiet --no-hardlinks "$top" "$root$top"
cache=$(ccache --get-config cache_dir 2>/dev/null || true)
if [ -n "$cache" ] && mkdir -p "$cache"; then mount --bind "$cache" "$root/root/.ccache"; fi

failed=()
for command in ./run.sh ./test.sh; do
  echo "== $command on the bare root ($SECONDS s)"
  # Nothing of this session's environment goes in but the way to the network.
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 CCACHE_DIR=/root/.ccache \
    ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} ${no_proxy:+no_proxy="$no_proxy"} \
    chroot "$root" /bin/bash -c "cd '$top' && $command" </dev/null || failed+=("$command (exit status $?)")
done

if [ ${#failed[@]} -gt 0 ]; then
  printf 'FAILED on a bare Debian 12: %s\n' "${failed[@]}" >&2
  exit 1
fi
echo "Both commands pass on a bare Debian 12 ($SECONDS s)"
