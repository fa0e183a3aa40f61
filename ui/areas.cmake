# What the window is composed of, and how it shares its size.
target_sources(ui_logic PRIVATE
    area_plan.cpp
    window_place.cpp)

target_sources(ui_parts PRIVATE
    cover_disc.cpp
    cover_disc.h
    dsp_bar.cpp
    dsp_bar.h
    edge_grips.cpp
    edge_grips.h
    elided_label.cpp
    elided_label.h
    fitted_button.cpp
    fitted_title.cpp
    fitted_title.h
    library_panel.cpp
    library_panel.h
    look_controls.cpp
    look_controls.h
    mini_cover.cpp
    mini_cover.h
    progress_dial.cpp
    progress_dial.h
    setup_dialog.cpp
    setup_dialog.h
    sleep_controls.cpp
    sleep_controls.h
    stage.cpp
    stage.h
    title_bar.cpp
    title_bar.h
    tools_menu.cpp
    tools_menu.h)
