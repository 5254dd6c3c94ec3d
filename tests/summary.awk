# Counts what ran, from what CTest wrote about its tests and what GoogleTest wrote about the cases in each: in the folder
# cases, one file for each program, which is missing where the program crashed.
#
# usage: awk -f summary.awk -v cases=FOLDER tests.xml

# The value of an attribute of the tag in the line.
function attribute(name, line) {
    if (!match(line, " " name "=\"[^\"]*\""))
        return ""
    return unescaped(substr(line, RSTART + length(name) + 3, RLENGTH - length(name) - 4))
}

function unescaped(text) {
    gsub(/&#x0A;|&#10;/, "\n", text)
    gsub(/&lt;/, "<", text)
    gsub(/&gt;/, ">", text)
    gsub(/&quot;/, "\"", text)
    gsub(/&apos;/, "'", text)
    gsub(/&amp;/, "\\&", text)
    return text
}

function skip(name, reason) {
    ++skipped
    if (!(reason in skips))
        reasons[++kinds] = reason
    skips[reason] = skips[reason] ? skips[reason] ", " name : name
}

# Adds the cases of a program; notes how many there are, and how many of them failed.
function addCases(file,    line, name, reason) {
    found = 0
    bad = 0
    while ((getline line < file) > 0) {
        if (line ~ /<testcase /) {
            ++found
            name = attribute("classname", line) "." attribute("name", line)
            if (attribute("result", line) == "completed")
                ++ran
            else if (attribute("status", line) == "notrun")
                skip(name, "is disabled")
        } else if (line ~ /<failure /) {
            bad += !(name in failures)
            failures[name] = 1
        } else if (line ~ /<skipped /) {
            reason = attribute("message", line)
            sub(/^[^\n]*\n/, "", reason) # file and line
            gsub(/\n/, " ", reason)
            skip(name, reason)
        }
    }
    close(file)
}

/<testcase / {
    test = attribute("name", $0)
    addCases(cases "/" test ".xml")
    status = attribute("status", $0)
    # A program can fail although its cases pass, such as by what it leaks.
    if (!found && status != "notrun" || !bad && status == "fail")
        ++ran
    if (!bad && status == "fail")
        failures[test] = 1
}
/<skipped / {
    skipping = !found && attribute("message", $0) ~ /^SKIP_/
    if (!found && !skipping) { # could not be started
        ++ran
        failures[test] = 1
    }
}
# What a skipped test printed is why.
/<system-out>/ && skipping {
    sub(/.*<system-out>/, "")
    sub(/<\/system-out>.*/, "")
    skip(test, unescaped($0))
    skipping = 0
}

END {
    for (name in failures)
        ++failed
    printf "%d tests ran: %d passed, %d failed, %d skipped%s\n", ran, ran - failed, failed, skipped, skipped ? ":" : ""
    for (i = 1; i <= kinds; ++i)
        print "  " skips[reasons[i]] ": " reasons[i]
}
