#pragma once

#include "data/indexed_array.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace data {

/// Every text of a window that is no caption, message or status text of the language file's lists.
/// A text is added here, in the table of texts.cpp, and in every file of languages/.
enum class Text {
    // Qt's own texts
    locale,

    // Run-time errors
    error_heading,
    error_invalid_procedure_call,
    error_overflow,
    error_subscript_out_of_range,
    error_file_not_found,
    error_disk_full,
    error_input_past_end,
    error_permission_denied,
    error_path_file_access,
    error_path_not_found,
    error_unknown,
    error_program_ends,
    error_nothing_unsaved,
    recovery_copy_written,
    recovery_copy_failed,
    recovery_copy_older,

    // Where they happen, and why
    place_reason,
    place_line,
    place_province,
    place_column,
    place_record,
    place_flag,
    place_selection,
    place_id_map_point,
    place_press_and_offset,
    place_press_y,
    place_location,
    place_sprite_sets,
    place_table_column,
    place_table_row,
    reason_not_between,
    reason_identifier,
    reason_digits,
    reason_line_ends,
    reason_utf_16,
    reason_record_ends,
    reason_open_quote,
    reason_unknown_list,
    reason_too_many_records,
    reason_unknown_text,
    reason_bitmap_name,
    reason_too_many_sprites,
    reason_too_many_sets,
    reason_no_set_chosen,
    reason_no_drive,
    reason_no_file,
    reason_not_a_file,
    reason_no_folder,
    reason_folder_not_made,
    reason_folder_not_own,
    reason_not_whole,
    reason_picture,
    reason_no_image,
    reason_empty_image,
    reason_image_size,
    reason_header_ends,
    reason_header_size,
    reason_bits,
    reason_too_few_bytes,
    reason_runs_end,
    reason_image_memory,
    reason_image_too_large,
    reason_transparent,
    reason_other_kind,
    reason_other_size,
    reason_row_missing,

    // Runs without a window
    batch_no_province,
    batch_rows_lost,
    batch_output_failed,

    // Menus
    menu_recuperer,
    menu_reenregistrer,
    menu_zoom_plus,
    menu_zoom_moins,
    menu_zoom_1,
    menu_zoom_tout,
    menu_montrer,
    menu_colorer,
    menu_colorer_none,
    menu_fichiers_recents,
    menu_cartes_recentes,
    menu_recherche,
    menu_trouver,
    menu_suivante,
    menu_verifier,
    menu_modifications,
    menu_selection_precedente,
    menu_selection_suivante,
    menu_guide,
    tip_ouvrir_cartes,
    tip_ouvrir_csv,
    tip_gfx,
    tip_reenregistrer,
    tip_enregister,
    tip_recuperer,
    tip_carte_id,
    tip_zoom,
    tip_zoom_1,
    tip_montrer,
    tip_colorer,
    tip_trouver,
    tip_suivante,
    tip_verifier,
    tip_modifications,
    tip_selection_precedente,
    tip_selection_suivante,
    tip_normal,
    tip_saisie,
    tip_port,
    tip_dessin,
    tip_serie,
    tip_dessin_graph,
    tip_langue,

    // The empty workspace
    invitation,
    invitation_maps,
    invitation_file,

    // The about box
    about_version,
    about_credit,
    about_ok,

    // Status bar
    etat_none_selected,
    etat_one_selected,
    etat_selected,
    etat_unsaved,
    etat_lacking,
    notice_next_lacking,
    notice_none_lacks,
    notice_selection_not_on_map,
    notice_write_one,
    notice_write,
    notice_semicolon,
    notice_outside_code_page,
    notice_saved,
    notice_changed_outside,
    notice_no_province_read,
    notice_provinces_lost,
    notice_backup_failed,
    notice_one_new_copy,
    notice_new_copies,
    reason_no_sprite_set,
    reason_no_terrain_art,
    notice_unreadable,
    question_save_over_change,

    // A mixed selection, ranges and hints of controls
    differing_placeholder,
    differing_tip,
    differing_value,
    differing_value_one,
    empty_value,
    selection_not_applied_tip,
    range_tip,
    variant_tip,

    // The legend of the colours
    legend_tip,
    legend_range,
    legend_none,
    legend_yes,
    legend_no,

    // Columns and buttons of the dialogs
    column_province,
    column_name,
    column_column,
    column_value,
    column_before,
    column_now,
    column_problem,
    column_time,
    column_kind,
    column_file,
    column_differing,
    button_open,
    button_delete,
    button_put_back,
    button_refresh,
    button_close,
    button_select_all,
    button_add,
    button_remove,
    button_keep,
    button_invert,

    // Choosing files, folders, sprite sets and the language
    chooser_browse,
    chooser_drive,
    chooser_folders,
    chooser_folders_tip,
    chooser_files,
    chooser_file_name,
    chooser_file_name_tip,
    choice_unstorable,
    language_refused,
    sets_files,
    sets_add,
    sets_take_out,

    // Recovery copies and backups
    copies_caption,
    copies_recovery_copy,
    copies_backup,
    copies_none,
    copies_delete_question,
    copies_unreadable,

    // Changes
    modifications_caption,
    modifications_none,
    modifications_count,

    // The search
    recherche_caption,
    recherche_field,
    recherche_field_tip,
    recherche_name_or_city,
    recherche_comparison,
    recherche_comparison_tip,
    comparison_contains,
    comparison_equals,
    comparison_differs,
    comparison_is_empty,
    comparison_less,
    comparison_greater,
    recherche_text,
    recherche_text_tip,
    recherche_none,
    recherche_one,
    recherche_count,
    recherche_chosen,
    select_all_tip,
    add_tip,
    remove_tip,
    keep_tip,
    invert_tip,
    // The guide
    guide_caption,
    guide_headings,
    guide_missing,

    // The check
    controle_caption,
    controle_none,
    controle_count,
    controle_hint,
    problem_lone_line_feeds,
    problem_nul_bytes,
    problem_unreadable_line,
    problem_field_count,
    problem_further_fields,
    problem_identifier_not_whole,
    problem_identifier_unknown,
    problem_identifier_twice,
    problem_province_missing,
    problem_header,
    problem_fixed_row,
    problem_fixed_row_missing,
    problem_text_not_kept,
    problem_breaks_line,
    problem_unknown_code,
    problem_no_flag,
    problem_no_number,
    problem_out_of_range,
    problem_mine_flag,
    problem_coast,
    problem_outside_map,
    problem_other_province,
    problem_port_sea,
    problem_port_far,
    problem_not_on_map,
    problem_not_in_file,
    problem_colour,

    last = problem_colour,
};

/// A text's record in the language file is "TEXTE_key","text".
inline constexpr std::string_view text_prefix = "TEXTE_";

struct TextInfo {
    Text text;
    std::string_view key;     // behind the prefix
    std::string_view english; // for a language file that lacks the record
};

inline constexpr std::size_t text_count = static_cast<std::size_t>(Text::last) + 1;

/// The texts by their enumerator.
extern const IndexedArray<Text, TextInfo, text_count> texts;

/// Returns the pattern with %1 to %9 replaced by the first value, the second, and so on; one that
/// has no value stays.
std::string filled(std::string_view pattern, std::span<const std::string_view> values);

} // namespace data
