# Types a command line and the key Tab in a shell of its own, and prints what it would be completed with, one a line:
# complete.zsh FOLDER LINE
zmodload zsh/zpty
zpty inner zsh -f -i
{
    zpty -w inner "fpath=(${(q)1} \$fpath); PROMPT=; autoload -U compinit; compinit -u -d $TMPPREFIX.dump"
    # Everything that would be offered is printed where it is handed over.
    zpty -w inner 'null-line () { : }; compprefuncs=()
        compadd () {
            local -a found shown
            builtin compadd -O found "$@"
            for word in $found; do print -r -- "<<$word>>"; done
            builtin compadd "$@"
        }
        print -r -- "<<"READY">>"'
    zpty -r inner reply $'*<<READY>>*'
    zpty -w -n inner "$2"$'\t'
    zpty -w -n inner $'\C-u'
    zpty -w inner 'print -r -- "<<"OVER">>"'
    zpty -r inner reply $'*<<OVER>>*'
    print -r -- "$reply" | grep -o '<<[^>]*>>' | sed 's/^<<//; s/>>$//' | grep -vx OVER
} always {
    zpty -d inner
}
