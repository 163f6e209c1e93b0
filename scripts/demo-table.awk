# Written paths, one a line, as a table of the folders that they are in. Run with -F/.
function row(recording, target, folder, files) { printf "%-14s %-11s %-38s %5s\n", recording, target, folder, files }
{
    folder = substr($0, 1, length($0) - length($NF))
    if (!(folder in files)) {
        folders[++count] = folder
        recordings[folder] = $(NF - 2)
        targets[folder] = $(NF - 1)
    }
    ++files[folder]
}
END {
    row("recording", "target", "folder", "files")
    for (i = 1; i <= count; ++i)
        row(recordings[folders[i]], targets[folders[i]], folders[i], files[folders[i]])
}
