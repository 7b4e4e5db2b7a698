#include "cli/pages/Completion.h"

namespace korvande {

namespace {

std::string Joined(const std::vector<std::string>& words) {
    std::string joined;
    for (const std::string& word : words) joined += (joined.empty() ? "" : " ") + word;
    return joined;
}

// A text with a backslash before some of its characters.
std::string Escaped(const std::string& text, const std::string& characters) {
    std::string escaped;
    for (const char character : text) {
        if (characters.find(character) != std::string::npos) escaped += '\\';
        escaped += character;
    }
    return escaped;
}

// A text between quotes of a shell.
std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char character : text) {
        if (character == '\'') {
            quoted += "'\\''";
        } else {
            quoted += character;
        }
    }
    return quoted + "'";
}

std::string NamesOf(const Command& command) {
    std::string names;
    for (const CommandOption& option : command.options) names += (names.empty() ? "" : " ") + Joined(option.names);
    return names;
}

std::string BashValueOf(const CommandOption& option) {
    switch (option.takes) {
        case Takes::Words:
            return "woorden='" + Joined(option.words) + "'";
        case Takes::Folder:
            return "soort=-d";
        case Takes::File:
            return "soort=-f";
        default:
            return "return";
    }
}

}  // namespace

std::string BashCompletion(const std::vector<Command>& commands) {
    std::string values;
    std::string names;
    std::string paths;
    for (const Command& command : commands) {
        for (const CommandOption& option : command.options) {
            if (option.takes == Takes::Nothing) continue;
            values += "        '" + command.name + " " + option.names.back() + "') " + BashValueOf(option) + " ;;\n";
        }
        names += "            '" + command.name + "') woorden='" + NamesOf(command) + "' ;;\n";
        if (!command.subcommands.empty()) {
            paths += "        '" + command.name + "') woorden='" + Joined(command.subcommands) + "' ;;\n";
        }
    }
    return "# Completes command lines of korvande-cli in bash.\n"
           "_korvande_cli() {\n"
           "    local nu=${COMP_WORDS[COMP_CWORD]} opdracht= woorden= soort=-f i\n"
           "    for ((i = 1; i < COMP_CWORD && i < 3; i++)); do\n"
           "        case ${COMP_WORDS[i]} in\n"
           "        -*) break ;;\n"
           "        *) [[ $i -eq 1 || $opdracht == project ]] && opdracht=\"${opdracht:+$opdracht }${COMP_WORDS[i]}\" "
           ";;\n"
           "        esac\n"
           "    done\n"
           "    case \"$opdracht ${COMP_WORDS[COMP_CWORD - 1]}\" in\n" +
           values +
           "    *)\n"
           "        if [[ $nu == -* ]]; then\n"
           "            case $opdracht in\n" +
           names +
           "            esac\n"
           "        else\n"
           "            case $opdracht in\n" +
           paths +
           "            esac\n"
           "        fi\n"
           "        ;;\n"
           "    esac\n"
           "    if [[ -n $woorden ]]; then\n"
           "        mapfile -t COMPREPLY < <(compgen -W \"$woorden\" -- \"$nu\")\n"
           "    else\n"
           "        compopt -o filenames 2>/dev/null\n"
           "        mapfile -t COMPREPLY < <(compgen \"$soort\" -- \"$nu\")\n"
           "    fi\n"
           "}\n"
           "complete -F _korvande_cli korvande-cli\n";
}

namespace {

std::string ZshValueOf(const CommandOption& option) {
    switch (option.takes) {
        case Takes::Nothing:
            return "";
        case Takes::Words:
            return ":" + option.placeholder + ":(" + Joined(option.words) + ")";
        case Takes::Folder:
            return ":MAP:_files -/";
        case Takes::File:
            return ":" + option.placeholder + ":_files";
        default:
            return ":" + option.placeholder + ": ";
    }
}

std::string ZshArgumentsOf(const Command& command) {
    std::string arguments;
    for (const CommandOption& option : command.options) {
        for (const std::string& name : option.names) {
            arguments += " \\\n                " +
                         Quoted(name + "[" + Escaped(option.meaning, "[]:\\") + "]" + ZshValueOf(option));
        }
    }
    return arguments + " \\\n                '*:bestand:_files'";
}

std::string ZshNamesOf(const std::vector<Command>& commands, const Command& of) {
    std::string names;
    for (const std::string& sub : of.subcommands) {
        const std::string name = of.name.empty() ? sub : of.name + " " + sub;
        for (const Command& command : commands) {
            if (command.name == name) names += " " + Quoted(sub + ":" + command.meaning);
        }
    }
    return names;
}

}  // namespace

std::string ZshCompletion(const std::vector<Command>& commands) {
    std::string cases;
    for (const Command& command : commands) {
        if (command.subcommands.empty()) {
            cases += "        '" + command.name + "')\n            _arguments" + ZshArgumentsOf(command) +
                     "\n            ;;\n";
        }
    }
    std::string groups;
    for (const Command& command : commands) {
        if (!command.subcommands.empty()) {
            groups += "        '" + command.name + "') namen=(" + ZshNamesOf(commands, command) + ") ;;\n";
        }
    }
    return "#compdef korvande-cli\n"
           "# Completes command lines of korvande-cli in zsh.\n"
           "_korvande_cli() {\n"
           "    local opdracht= \n"
           "    local -a namen\n"
           "    local -i vanaf=2\n"
           "    while (( vanaf < CURRENT && vanaf < 4 )); do\n"
           "        [[ ${words[vanaf]} == -* ]] && break\n"
           "        [[ $vanaf -eq 2 || $opdracht == project ]] || break\n"
           "        opdracht=\"${opdracht:+$opdracht }${words[vanaf]}\"\n"
           "        vanaf+=1\n"
           "    done\n"
           "    case $opdracht in\n" +
           groups +
           "    esac\n"
           "    if (( $#namen )) && [[ ${words[CURRENT]} != -* ]]; then\n"
           "        _describe opdracht namen\n"
           "        return\n"
           "    fi\n"
           "    # What follows the command is as a command line of its own.\n"
           "    words=(korvande-cli \"${(@)words[vanaf,-1]}\")\n"
           "    (( CURRENT -= vanaf - 2 ))\n"
           "    case $opdracht in\n" +
           cases +
           "    *) _arguments '--help[toon deze hulp]' '--version[toon de versie]' ;;\n"
           "    esac\n"
           "}\n"
           "_korvande_cli \"$@\"\n";
}

namespace {

// When fish completes for a command: its words were typed.
std::string FishConditionOf(const Command& command) {
    if (command.name.empty()) return "__fish_use_subcommand";
    std::string condition;
    std::string words = command.name;
    for (std::size_t space = 0; (space = words.find(' ')) != std::string::npos;) {
        condition += "__fish_seen_subcommand_from " + words.substr(0, space) + "; and ";
        words.erase(0, space + 1);
    }
    condition += "__fish_seen_subcommand_from " + words;
    if (command.subcommands.empty()) return condition;
    return condition + "; and not __fish_seen_subcommand_from " + Joined(command.subcommands);
}

std::string FishValueOf(const CommandOption& option) {
    switch (option.takes) {
        case Takes::Nothing:
            return "";
        case Takes::Words:
            return " -x -a " + Quoted(Joined(option.words));
        case Takes::Folder:
            return " -x -a '(__fish_complete_directories)'";
        case Takes::File:
            return " -r -F";
        default:
            return " -x";
    }
}

}  // namespace

std::string FishCompletion(const std::vector<Command>& commands) {
    std::string script = "# Completes command lines of korvande-cli in fish.\n";
    for (const Command& command : commands) {
        const std::string begin = "complete -c korvande-cli -n " + Quoted(FishConditionOf(command));
        for (const std::string& sub : command.subcommands) {
            const std::string name = command.name.empty() ? sub : command.name + " " + sub;
            for (const Command& other : commands) {
                if (other.name != name) continue;
                script += begin;
                script += " -f -a " + sub + " -d " + Quoted(other.meaning) + "\n";
            }
        }
        for (const CommandOption& option : command.options) {
            script += begin;
            for (const std::string& name : option.names) {
                script += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
            }
            script += FishValueOf(option) + " -d " + Quoted(option.meaning) + "\n";
        }
    }
    return script;
}

}  // namespace korvande
