# Debian's form of CHANGELOG.md: awk -v package=NAME -v maintainer="NAME <ADDRESS>" -f scripts/debian-changelog.awk

function endVersion() {
    if (date != "")
        printf "\n -- %s  %s\n", maintainer, date
}

/^## [0-9]/ {
    endVersion()
    command = "date --utc --rfc-email --date=" substr($3, 2, 10)
    command | getline date
    close(command)
    printf "%s%s (%s) stable; urgency=medium\n\n", versions++ ? "\n" : "", package, $2
    next
}

date != "" && NF {
    sub(/^- /, "* ")
    print "  " $0
}

END {
    endVersion()
}
