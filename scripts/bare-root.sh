# To be sourced from the top folder: a bare Debian 12 to try things in, for scripts beside this one that take no arguments
# and call
#   inOwnNamespaces        the script again as root, with mounts and processes of its own; sets folder
#   makeBareRoot [OPTION]  makes $root with mmdebstrap, with this machine's way to the packages; more options for it
#   inside COMMAND         runs it in a shell there, with nothing of this session's environment but the way to the network
# A script ends with 77 when this machine cannot try (not root, no mmdebstrap, no mounts).

cannot() { echo "Not tried on a bare Debian 12: $1" >&2; exit 77; }

inOwnNamespaces() { # ARGUMENTS of the script
  if [ "${1:-}" = "--inside" ]; then
    folder=$2
    root=$folder/root
    return
  fi
  [ "$(id -u)" -eq 0 ] || cannot "this needs root"
  command -v mmdebstrap >/dev/null || cannot "mmdebstrap is missing"
  unshare --mount --pid --fork true 2>/dev/null || cannot "mounts of its own are not allowed here"
  folder=$(mktemp -d /var/tmp/nivra-bare-root.XXXXXX)
  # The mounts and processes live in namespaces of their own and go with them: nothing of this machine is mounted under the
  # folder when it is removed, however this ends.
  child=
  cleanUp() {
    [ -z "$child" ] || { kill -KILL "$child" && wait "$child"; } 2>/dev/null || true
    for _ in 1 2 3 4 5; do rm -rf --one-file-system "$folder" && break || sleep 1; done
  }
  trap cleanUp EXIT
  trap 'exit 1' HUP INT TERM
  unshare --mount --pid --fork --kill-child --mount-proc "$PWD/scripts/$(basename "$0")" --inside "$folder" &
  child=$!
  wait "$child" && status=0 || status=$?
  child=
  exit "$status"
}

makeBareRoot() {
  mkdir "$root"
  echo "Building a bare Debian 12"
  # The mirror that this machine uses for Debian 12, the usual one otherwise; its proxy likewise.
  local sources
  sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' 2>/dev/null |
    grep -E ' bookworm(-updates|-security)? main$' | sort -u || true)
  if ! mmdebstrap --quiet --variant=minbase "$@" bookworm "$root" ${sources:+-} <<<"$sources" 2>"$folder/log"; then
    cat "$folder/log" >&2
    echo "FAILED: the bare root could not be built" >&2
    exit 1
  fi
  apt-config dump | grep -iE '^Acquire::https?::Proxy' >"$root/etc/apt/apt.conf.d/99proxy" || true
  mount -t proc proc "$root/proc"
  mount --rbind /dev "$root/dev"
  mount -t tmpfs tmpfs "$root/tmp"
}

inside() {
  env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 CCACHE_DIR=/root/.ccache \
    ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} ${no_proxy:+no_proxy="$no_proxy"} \
    chroot "$root" /bin/bash -c "$1" </dev/null
}
