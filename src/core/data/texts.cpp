#include "data/texts.h"

namespace data {

constexpr IndexedArray<Text, TextInfo, text_count> texts = {{{
    // Qt's own texts
    {Text::locale, "locale", "en"},

    // Run-time errors
    {Text::error_heading, "error_heading", "Run-time error %1: %2"},
    {Text::error_invalid_procedure_call, "error_invalid_procedure_call",
     "Invalid procedure call or argument"},
    {Text::error_overflow, "error_overflow", "Overflow"},
    {Text::error_subscript_out_of_range, "error_subscript_out_of_range", "Subscript out of range"},
    {Text::error_file_not_found, "error_file_not_found", "File not found"},
    {Text::error_disk_full, "error_disk_full", "Disk full"},
    {Text::error_input_past_end, "error_input_past_end", "Input past end of file"},
    {Text::error_permission_denied, "error_permission_denied", "Permission denied"},
    {Text::error_path_file_access, "error_path_file_access", "Path/File access error"},
    {Text::error_path_not_found, "error_path_not_found", "Path not found"},
    {Text::error_unknown, "error_unknown", "Unknown error"},
    {Text::error_program_ends, "error_program_ends", "The program ends now."},
    {Text::error_nothing_unsaved, "error_nothing_unsaved", "There were no unsaved changes."},
    {Text::recovery_copy_written, "recovery_copy_written", "The unsaved changes are in %1"},
    {Text::recovery_copy_failed, "recovery_copy_failed",
     "The unsaved changes could not be written: %1"},
    {Text::recovery_copy_older, "recovery_copy_older", "An older state of them is in %1"},

    // Where they happen, and why
    {Text::place_reason, "place_reason", "%1: %2"},
    {Text::place_line, "place_line", "line %1"},
    {Text::place_province, "place_province", "province %1"},
    {Text::place_column, "place_column", "column %1 (%2)"},
    {Text::place_record, "place_record", "record %1"},
    {Text::place_flag, "place_flag", "flag"},
    {Text::place_selection, "place_selection", "selection"},
    {Text::place_id_map_point, "place_id_map_point", "ID map, point (%1, %2), colour #%3"},
    {Text::place_press_and_offset, "place_press_and_offset", "map offset and press added"},
    {Text::place_press_y, "place_press_y", "Y of the press on the map"},
    {Text::place_location, "place_location", "the location %1"},
    {Text::place_sprite_sets, "place_sprite_sets", "sprite sets of the kind %1"},
    {Text::place_table_column, "place_table_column", "table column"},
    {Text::place_table_row, "place_table_row", "table row"},
    {Text::reason_not_between, "reason_not_between", "%1 is not between %2 and %3"},
    {Text::reason_identifier, "reason_identifier", "an identifier up to %1 was expected"},
    {Text::reason_digits, "reason_digits", "a number of at most %1 digits was expected"},
    {Text::reason_line_ends, "reason_line_ends",
     "the line ends here, at least %1 fields separated by ';' were expected"},
    {Text::reason_utf_16, "reason_utf_16",
     "the file is stored as UTF-16, Windows-1252 (ANSI) was expected"},
    {Text::reason_record_ends, "reason_record_ends",
     "the file ends inside a record, a further field was expected"},
    {Text::reason_open_quote, "reason_open_quote",
     "a text begins with a quote, a second quote was expected before the end of the line"},
    {Text::reason_unknown_list, "reason_unknown_list", "there is no value list %1"},
    {Text::reason_too_many_records, "reason_too_many_records",
     "at most %1 records with the prefix %2 were expected"},
    {Text::reason_unknown_text, "reason_unknown_text", "'%1' is none of the list's texts"},
    {Text::reason_bitmap_name, "reason_bitmap_name",
     "a file name in double quotes was expected after the key Bitmap"},
    {Text::reason_too_many_sprites, "reason_too_many_sprites",
     "sprite %1 of its kind, at most %2 were expected"},
    {Text::reason_too_many_sets, "reason_too_many_sets",
     "the list of sprite sets has records 1 to %1"},
    {Text::reason_no_set_chosen, "reason_no_set_chosen",
     "no set is selected, one to take out was expected"},
    {Text::reason_no_drive, "reason_no_drive", "a path on a drive was expected"},
    {Text::reason_no_file, "reason_no_file", "there is no such file"},
    {Text::reason_not_a_file, "reason_not_a_file", "a file was expected here"},
    {Text::reason_no_folder, "reason_no_folder", "the folder does not exist"},
    {Text::reason_folder_not_made, "reason_folder_not_made", "the folder cannot be made"},
    {Text::reason_folder_not_own, "reason_folder_not_own", "others can write into this folder"},
    {Text::reason_not_whole, "reason_not_whole", "only %1 of its %2 bytes could be read (%3)"},
    {Text::reason_picture, "reason_picture", "the picture could not be written"},
    {Text::reason_no_image, "reason_no_image", "a bitmap or another image was expected (%1)"},
    {Text::reason_empty_image, "reason_empty_image", "the file is empty, an image was expected"},
    {Text::reason_image_size, "reason_image_size",
     "a bitmap of %1 x %2 pixels, at least 1 x 1 was expected"},
    {Text::reason_header_ends, "reason_header_ends", "the file ends inside the bitmap header"},
    {Text::reason_header_size, "reason_header_size",
     "a bitmap header of %1 bytes, 12 or at least 40 were expected"},
    {Text::reason_bits, "reason_bits",
     "a bitmap with %1 bits per pixel, 1, 4, 8, 16, 24 or 32 were expected"},
    {Text::reason_too_few_bytes, "reason_too_few_bytes",
     "a bitmap of %1 x %2 pixels with %3 bits each needs %4 bytes, the file has %5"},
    {Text::reason_runs_end, "reason_runs_end",
     "the run-length pixels end in row %1 of the file, %2 rows were expected"},
    {Text::reason_image_memory, "reason_image_memory",
     "the image's %1 x %2 pixels take more memory than there is"},
    {Text::reason_image_too_large, "reason_image_too_large",
     "an image of %1 x %2 pixels takes %3 MB of memory, at most %4 MB were expected; an "
     "uncompressed bitmap needs none"},
    {Text::reason_transparent, "reason_transparent",
     "all pixels have the colour of the top left one, which is transparent; a frame with another "
     "colour was expected"},
    {Text::reason_other_kind, "reason_other_kind",
     "the file is no longer an uncompressed bitmap, as it was when the maps were opened"},
    {Text::reason_other_size, "reason_other_size",
     "the bitmap has %1 x %2 pixels now, %3 x %4 were expected"},
    {Text::reason_row_missing, "reason_row_missing", "the file ends before the pixels of row %1"},

    // Runs without a window
    {Text::batch_no_province, "batch_no_province", "%1: no province was found"},
    {Text::batch_rows_lost, "batch_rows_lost",
     "%1: rows behind a line feed alone are not read, the file has more provinces than that; "
     "--check tells where"},
    {Text::batch_output_failed, "batch_output_failed", "The output could not be written"},

    // Menus
    {Text::menu_recuperer, "menu_recuperer", "&Recovery copies and backups..."},
    {Text::menu_reenregistrer, "menu_reenregistrer", "Save &again"},
    {Text::menu_zoom_plus, "menu_zoom_plus", "Zoom i&n"},
    {Text::menu_zoom_moins, "menu_zoom_moins", "Zoom &out"},
    {Text::menu_zoom_1, "menu_zoom_1", "&Actual size"},
    {Text::menu_zoom_tout, "menu_zoom_tout", "&Whole map"},
    {Text::menu_montrer, "menu_montrer", "Show the se&lection"},
    {Text::menu_colorer, "menu_colorer", "Colour &by"},
    {Text::menu_colorer_none, "menu_colorer_none", "&No colours"},
    {Text::menu_fichiers_recents, "menu_fichiers_recents", "Recent province &files"},
    {Text::menu_cartes_recentes, "menu_cartes_recentes", "Recen&t maps"},
    {Text::menu_recherche, "menu_recherche", "Searc&h"},
    {Text::menu_trouver, "menu_trouver", "&Find..."},
    {Text::menu_suivante, "menu_suivante", "&Next province without a position"},
    {Text::menu_verifier, "menu_verifier", "&Check..."},
    {Text::menu_modifications, "menu_modifications", "C&hanges..."},
    {Text::menu_selection_precedente, "menu_selection_precedente", "&Previous selection"},
    {Text::menu_selection_suivante, "menu_selection_suivante", "N&ext selection"},
    {Text::menu_guide, "menu_guide", "Guide"},
    {Text::tip_ouvrir_cartes, "tip_ouvrir_cartes", "Map 1 and the ID map are needed, map 2 is not"},
    {Text::tip_ouvrir_csv, "tip_ouvrir_csv", "Its values take the place of the present ones"},
    {Text::tip_gfx, "tip_gfx", "The sprites and terrain drawings that the map shows"},
    {Text::tip_reenregistrer, "tip_reenregistrer", "Where it was saved last, without asking"},
    {Text::tip_enregister, "tip_enregister", "The folder and the name are chosen first"},
    {Text::tip_recuperer, "tip_recuperer",
     "Unsaved provinces that earlier runs left, and files that saves replaced"},
    {Text::tip_carte_id, "tip_carte_id",
     "The map whose colours are the identifiers of the provinces"},
    {Text::tip_verifier, "tip_verifier",
     "Lists what the game could not take: in the file, in the values, on the map"},
    {Text::tip_modifications, "tip_modifications",
     "Lists what differs from the file; each value can be put back"},
    {Text::tip_normal, "tip_normal", "A click on the map selects a province, Ctrl+click adds one"},
    {Text::tip_saisie, "tip_saisie", "A click on the map places what is chosen here"},
    {Text::tip_serie, "tip_serie", "The map shows this set"},
    {Text::tip_dessin_graph, "tip_dessin_graph",
     "Shows the terrain drawings on the map, or hides them"},
    {Text::tip_langue, "tip_langue", "Takes effect at the next start"},

    // The empty workspace
    {Text::invitation, "invitation", "To begin, %1 and %2, or drop the files here."},
    {Text::invitation_maps, "invitation_maps", "open the maps (Ctrl+M)"},
    {Text::invitation_file, "invitation_file", "open the province file (Ctrl+O)"},

    // The about box
    {Text::about_version, "about_version", "Version %1"},
    {Text::about_credit, "about_credit", "The Province Editor developers"},
    {Text::about_ok, "about_ok", "OK"},

    // Status bar
    {Text::etat_none_selected, "etat_none_selected", "No province selected"},
    {Text::etat_one_selected, "etat_one_selected", "1 province selected"},
    {Text::etat_selected, "etat_selected", "%1 provinces selected"},
    {Text::etat_unsaved, "etat_unsaved", "unsaved changes"},
    {Text::etat_lacking, "etat_lacking", "%1 lacking"},
    {Text::notice_next_lacking, "notice_next_lacking", "To be placed: %1 %2"},
    {Text::notice_none_lacks, "notice_none_lacks",
     "No province on the map is left without this position"},
    {Text::notice_selection_not_on_map, "notice_selection_not_on_map",
     "The ID map has no pixel of the selected provinces"},
    {Text::notice_write_one, "notice_write_one", "%1: 1 province"},
    {Text::notice_write, "notice_write", "%1: %2 provinces"},
    {Text::notice_semicolon, "notice_semicolon",
     "A semicolon moves the rest of the line by one column in the saved file and in a recovery "
     "copy"},
    {Text::notice_outside_code_page, "notice_outside_code_page",
     "Characters that the game's code page lacks were stored as ?"},
    {Text::notice_saved, "notice_saved", "Saved: %1"},
    {Text::notice_changed_outside, "notice_changed_outside",
     "Another program has changed the file since it was read or saved here: %1"},
    {Text::notice_no_province_read, "notice_no_province_read",
     "No province was found in %1. It begins with: %2"},
    {Text::notice_provinces_lost, "notice_provinces_lost",
     "Reading lost provinces: %1 has line feeds alone at line ends, first on the lines %2"},
    {Text::notice_backup_failed, "notice_backup_failed",
     "The file was saved, but no backup of the old one was made: %1"},
    {Text::notice_one_new_copy, "notice_one_new_copy", "An earlier run left a recovery copy: %1"},
    {Text::notice_new_copies, "notice_new_copies",
     "Earlier runs left %1 recovery copies, the newest is %2"},
    {Text::reason_no_sprite_set, "reason_no_sprite_set",
     "The item that the graphics menu has checked holds no sprite set"},
    {Text::reason_no_terrain_art, "reason_no_terrain_art",
     "No folder with the complete terrain art was chosen"},
    {Text::notice_unreadable, "notice_unreadable", "%1 cannot be read: %2"},
    {Text::question_save_over_change, "question_save_over_change",
     "Another program has changed %1 since it was read or saved here. Save over it?"},

    // A mixed selection, ranges and hints of controls
    {Text::differing_placeholder, "differing_placeholder", "different values"},
    {Text::differing_tip, "differing_tip", "%1 different values, most often: %2"},
    {Text::differing_value, "differing_value", "%1 (%2 provinces)"},
    {Text::differing_value_one, "differing_value_one", "%1 (1 province)"},
    {Text::empty_value, "empty_value", "(empty)"},
    {Text::selection_not_applied_tip, "selection_not_applied_tip",
     "This selection is not applied yet: Enter applies it"},
    {Text::range_tip, "range_tip", "%1 to %2"},
    {Text::variant_tip, "variant_tip", "A click copies this variant to all selected provinces"},

    // The legend of the colours
    {Text::legend_tip, "legend_tip", "A click selects the provinces that have this colour."},
    {Text::legend_range, "legend_range", "%1 to %2"},
    {Text::legend_none, "legend_none", "No value"},
    {Text::legend_yes, "legend_yes", "Yes"},
    {Text::legend_no, "legend_no", "No"},

    // Columns and buttons of the dialogs
    {Text::column_province, "column_province", "Province"},
    {Text::column_name, "column_name", "Name"},
    {Text::column_column, "column_column", "Column"},
    {Text::column_value, "column_value", "Value"},
    {Text::column_before, "column_before", "Before"},
    {Text::column_now, "column_now", "Now"},
    {Text::column_problem, "column_problem", "What is wrong"},
    {Text::column_time, "column_time", "Time"},
    {Text::column_kind, "column_kind", "Kind"},
    {Text::column_file, "column_file", "File"},
    {Text::column_differing, "column_differing", "Differing provinces"},
    {Text::button_open, "button_open", "&Open"},
    {Text::button_delete, "button_delete", "&Delete"},
    {Text::button_put_back, "button_put_back", "&Put back"},
    {Text::button_refresh, "button_refresh", "&Refresh"},
    {Text::button_close, "button_close", "Close"},
    {Text::button_select_all, "button_select_all", "Select &all"},
    {Text::button_add, "button_add", "A&dd"},
    {Text::button_remove, "button_remove", "Re&move"},
    {Text::button_keep, "button_keep", "&Keep only"},
    {Text::button_invert, "button_invert", "&Invert"},

    // Choosing files, folders, sprite sets and the language
    {Text::chooser_browse, "chooser_browse", "Choose the file: %1"},
    {Text::chooser_drive, "chooser_drive", "Drive"},
    {Text::chooser_folders, "chooser_folders", "Folders"},
    {Text::chooser_folders_tip, "chooser_folders_tip", "Enter or a double-click opens the folder"},
    {Text::chooser_files, "chooser_files", "Files"},
    {Text::chooser_file_name, "chooser_file_name", "File &name"},
    {Text::chooser_file_name_tip, "chooser_file_name_tip",
     "A name in the open folder, or a full path"},
    {Text::choice_unstorable, "choice_unstorable",
     "This choice cannot be stored and was not taken: its name or path holds a quotation mark, a "
     "line end, a backslash inside a name, or a letter outside the code page Windows-1252."},
    {Text::language_refused, "language_refused",
     "The language stays as it is, since the program could not start with this language file. %1"},
    {Text::sets_files, "sets_files", "Sprite descriptor files"},
    {Text::sets_add, "sets_add", "Add the selected file: %1"},
    {Text::sets_take_out, "sets_take_out", "Take the selected set out: %1"},

    // Recovery copies and backups
    {Text::copies_caption, "copies_caption", "Recovery copies and backups"},
    {Text::copies_recovery_copy, "copies_recovery_copy", "Recovery copy"},
    {Text::copies_backup, "copies_backup", "Backup"},
    {Text::copies_none, "copies_none", "There are no recovery copies and no backups."},
    {Text::copies_delete_question, "copies_delete_question", "Delete %1 for good?"},
    {Text::copies_unreadable, "copies_unreadable", "cannot be read"},

    // Changes
    {Text::modifications_caption, "modifications_caption",
     "Changes since the file was read or saved"},
    {Text::modifications_none, "modifications_none", "There are no unsaved changes."},
    {Text::modifications_count, "modifications_count", "%1 changes"},

    // The search
    {Text::recherche_caption, "recherche_caption", "Find provinces"},
    {Text::recherche_field, "recherche_field", "&Field"},
    {Text::recherche_field_tip, "recherche_field_tip",
     "Type any part of a field's name, or of its header in the province file, and press Enter"},
    {Text::recherche_name_or_city, "recherche_name_or_city", "Name or city"},
    {Text::recherche_comparison, "recherche_comparison", "&Comparison"},
    {Text::recherche_comparison_tip, "recherche_comparison_tip",
     "Empty is a value that is missing, - or #N/A. Less and greater compare numbers and find no "
     "value that is none."},
    {Text::comparison_contains, "comparison_contains", "contains"},
    {Text::comparison_equals, "comparison_equals", "equals"},
    {Text::comparison_differs, "comparison_differs", "differs from"},
    {Text::comparison_is_empty, "comparison_is_empty", "is empty"},
    {Text::comparison_less, "comparison_less", "is less than"},
    {Text::comparison_greater, "comparison_greater", "is greater than"},
    {Text::recherche_text, "recherche_text", "&Text"},
    {Text::recherche_text_tip, "recherche_text_tip",
     "Letter case does not matter; a coded value is found by its code and by its text. Up and Down "
     "choose a province of the list, Enter selects it."},
    {Text::recherche_none, "recherche_none", "No province was found."},
    {Text::recherche_one, "recherche_one", "1 province"},
    {Text::recherche_count, "recherche_count", "%1 provinces"},
    {Text::recherche_chosen, "recherche_chosen", "%1 provinces, %2 chosen"},
    {Text::select_all_tip, "select_all_tip",
     "Select all provinces of the list, or only the chosen rows when there are several"},
    {Text::add_tip, "add_tip",
     "Add all provinces of the list, or the chosen rows when there are several, to the selection"},
    {Text::remove_tip, "remove_tip",
     "Take all provinces of the list, or the chosen rows when there are several, out of the "
     "selection"},
    {Text::keep_tip, "keep_tip",
     "Keep of the selection only what the list holds too, or the chosen rows when there are "
     "several"},
    {Text::invert_tip, "invert_tip",
     "Select all provinces that are not selected now, whatever the list holds"},
    // The guide
    {Text::guide_caption, "guide_caption", "Guide to the Province Editor"},
    {Text::guide_headings, "guide_headings", "Headings of the guide"},
    {Text::guide_missing, "guide_missing",
     "The guide is missing: a folder docs with the file guide.md was expected beside the program."},

    // The check
    {Text::controle_caption, "controle_caption", "Check of the provinces"},
    {Text::controle_none, "controle_none", "No problem was found."},
    {Text::controle_count, "controle_count", "Problems: %1, hints: %2"},
    {Text::controle_hint, "controle_hint", "hint"},
    {Text::problem_lone_line_feeds, "problem_lone_line_feeds",
     "line feeds alone (%1) end no line: the rows behind them are not read"},
    {Text::problem_nul_bytes, "problem_nul_bytes", "NUL bytes: %1"},
    {Text::problem_unreadable_line, "problem_unreadable_line",
     "the line has %1 fields, reading needs at least %2 and cannot take it"},
    {Text::problem_field_count, "problem_field_count", "the line has %1 fields instead of %2"},
    {Text::problem_further_fields, "problem_further_fields",
     "the line has %1 fields instead of %2, saving will not keep the further ones"},
    {Text::problem_identifier_not_whole, "problem_identifier_not_whole",
     "the identifier '%1' is no whole number, it is read as %2"},
    {Text::problem_identifier_unknown, "problem_identifier_unknown",
     "the identifier '%1' is not between 1 and %2: the line is not read and saving will not keep "
     "it"},
    {Text::problem_identifier_twice, "problem_identifier_twice",
     "province %1 is already on line %2, this line replaces it"},
    {Text::problem_province_missing, "problem_province_missing",
     "the file has no line for this province"},
    {Text::problem_header, "problem_header", "the header is '%1' instead of '%2'"},
    {Text::problem_fixed_row, "problem_fixed_row", "the game's own row has '%2' here, not '%1'"},
    {Text::problem_fixed_row_missing, "problem_fixed_row_missing",
     "the game's own row '%1' is missing"},
    {Text::problem_text_not_kept, "problem_text_not_kept",
     "saving will not keep '%1' (lines with text in this column: %2)"},
    {Text::problem_breaks_line, "problem_breaks_line",
     "'%1' holds a semicolon or a line end, which breaks the saved line"},
    {Text::problem_unknown_code, "problem_unknown_code", "'%1' is no code of the language file"},
    {Text::problem_no_flag, "problem_no_flag", "'%1' is neither 0 nor 1"},
    {Text::problem_no_number, "problem_no_number", "'%1' is no number"},
    {Text::problem_out_of_range, "problem_out_of_range", "%1 is not between 0 and %2"},
    {Text::problem_mine_flag, "problem_mine_flag", "the mine flag is %1, but the goods are '%2'"},
    {Text::problem_coast, "problem_coast",
     "'%1' is neither coastal nor inland and counts as inland"},
    {Text::problem_outside_map, "problem_outside_map", "the position (%1) lies outside the map"},
    {Text::problem_other_province, "problem_other_province",
     "the position (%1) lies in province %2"},
    {Text::problem_port_sea, "problem_port_sea", "the port's sea '%1' is no sea province"},
    {Text::problem_port_far, "problem_port_far",
     "the port (%1) lies more than 50 pixels from its sea, province %2"},
    {Text::problem_not_on_map, "problem_not_on_map", "the ID map has no pixel of this province"},
    {Text::problem_not_in_file, "problem_not_in_file",
     "the ID map has %1 pixels of this province, which has no values"},
    {Text::problem_colour, "problem_colour",
     "the ID map has %2 pixels of the identifier %1, which no province has"},
}}};

namespace {

constexpr bool is_in_order() {
    std::size_t position = 0;
    for (const auto& row : texts) {
        if (position_of(row.text) != position++ || row.key.empty())
            return false;
    }
    return true;
}
static_assert(is_in_order(), "the rows stand in the order of the enumeration");

} // namespace

std::string filled(std::string_view pattern, std::span<const std::string_view> values) {
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const bool marked = pattern[at] == '%' && at + 1 < pattern.size();
        const auto number =
            marked ? static_cast<std::size_t>(pattern[at + 1] - '1') : values.size();
        if (number < values.size()) {
            text += values[number];
            ++at;
        } else {
            text += pattern[at];
        }
    }
    return text;
}

} // namespace data
