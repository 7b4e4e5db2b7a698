# shellcheck shell=bash
# What the window's looks and keys are tested in: the size of the text, the colours, the window manager and the display.
# shellcheck disable=SC2034
textSizes=(1 1.25 1.5 2)
themes=(Adwaita Adwaita:dark)
managers=(openbox xfwm4)
displays=(1024x768 1280x1024)
# The tests of looks and keys, as a filter.
surroundedSuites='PreviewWindowTest.*:SurroundingsTest.*:WindowSizeTest.*:DialogSizeTest.*:KeyboardTest.*'

AllSurroundings() {
    local textSize theme manager display
    for textSize in "${textSizes[@]}"; do
        for theme in "${themes[@]}"; do
            for manager in "${managers[@]}"; do
                for display in "${displays[@]}"; do
                    printf '%s %s %s %s\n' "$textSize" "$theme" "$manager" "$display"
                done
            done
        done
    done
}
