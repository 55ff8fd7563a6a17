#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "host/language.h"

namespace orvendal {

/// Translated texts of the sample host and its stand-in library, in one language. %1, %2 stand for what Fill
/// puts there.
struct Words {
  // Buttons.
  std::string_view accept;
  std::string_view cancel;
  std::string_view close;
  std::string_view yes;
  std::string_view no;

  // The menu of a text box.
  std::string_view cut;
  std::string_view copy;
  std::string_view paste;
  std::string_view select_all;

  // Columns and fields.
  std::string_view code;
  std::string_view description;
  std::string_view name;
  std::string_view branch;
  std::string_view workstation;
  std::string_view shift;
  std::string_view store;
  std::string_view provider;

  // The search for a product and the picker of an employee.
  std::string_view product_search;
  std::string_view employee_picker;
  std::string_view supervisor_picker;
  std::string_view by_code;
  std::string_view by_description;
  std::string_view search_for;
  std::string_view found;            // %1 of them
  std::string_view found_first;      // %1 shown of %2
  std::string_view found_other_way;  // none by the way %1, but %3 by the way %2

  // The workstation's panel and the change of session.
  std::string_view workstation_panel;
  std::string_view reconnect;
  std::string_view store_open;
  std::string_view store_opened_anew;
  std::string_view store_given_up;
  std::string_view session_change;

  // Why a store cannot be used; %1 is its file, or the folder that is missing.
  std::string_view folder_missing;
  std::string_view store_missing;
  std::string_view store_locked;
  std::string_view store_is_folder;
  std::string_view store_no_database;
  std::string_view store_damaged;
  std::string_view store_read_only;
  std::string_view store_refused;
  std::string_view store_foreign;          // %2 is the table that it lacks
  std::string_view store_other;            // %2 is what the engine says
  std::string_view store_newer;            // %2 is its version, %3 the one that this program knows
  std::string_view store_version_unknown;  // %2 is its version, %3 as above
  std::string_view store_older;      // %2 is its version, %3 as above, %4 what it lacks, %5 how that is added
  std::string_view store_lacks;      // %2 is what it lacks, %3 how that is added
  std::string_view store_no_table;   // %2 is a name that is no table's
  std::string_view store_no_date;    // %2 is the field that is not declared as a date
  std::string_view store_no_text;    // %2 is the field that is not declared as a text
  std::string_view store_no_number;  // %2 is the field that is not declared as a number with decimals
  std::string_view store_narrow_field;  // %2 is a field, %3 the characters that it takes, %4 those it needs
  std::string_view store_generated_field;  // %2 is a field that is calculated
  std::string_view store_own_rule;         // %2 is a table, %3 the rule as SQL names it
  std::string_view store_demanding_field;  // %2 is a field that demands a value

  // Why the store ends what is being done; %1 is its file.
  std::string_view store_moved;
  std::string_view store_full;
  std::string_view store_disk_error;
  std::string_view store_too_slow;
  std::string_view store_not_allowed;
  std::string_view text_not_understood;  // %2 is where it is not
  std::string_view date_not_understood;
  std::string_view table_missing;  // %2
  std::string_view field_missing;  // %2
  std::string_view field_missing_somewhere;
  std::string_view row_twice;
  std::string_view value_refused;
  std::string_view value_of_wrong_kind;
  std::string_view row_missing;
  std::string_view connection_closed;
  std::string_view rows_closed;
  std::string_view rows_open;
  std::string_view rows_fixed;
  std::string_view rows_without_positions;
  std::string_view not_now;
  std::string_view wrong_argument;
  std::string_view number_too_large;
  std::string_view field_too_large;  // %2
  std::string_view grid_too_long;    // %2 is how many rows can be saved
  std::string_view lines_not_whole;
  std::string_view value_empty;
  std::string_view object_missing;
  std::string_view program_error;

  // Errors of the program.
  std::string_view error;         // %1 number, %2 description
  std::string_view part_missing;  // %1 is the file
  std::string_view no_display;
  std::string_view picture_not_written;  // %1 is the file

  // What is recorded of the user, and brought back; %1 is the file and %2 what the system says.
  std::string_view record_not_made;
  std::string_view record_cut;
  std::string_view work_not_kept;
  std::string_view unsaved_work_found;  // in the branch %1, written last at %2
  std::string_view day_changed_meanwhile;
  std::string_view bring_work_back;    // it is put into %1 otherwise
  std::string_view work_not_all_back;  // all of it is in %1
  std::string_view unknown_option;     // %1
  std::string_view unexpected_word;    // %1
  std::string_view value_missing;      // %1 is the option
  std::string_view argument_missing;   // %1 is the command, %2 what it lacks
  std::string_view bad_value;          // %1 is the option, %2 the value, %3 what it takes
  std::string_view value_not_taken;    // %1 is the option
  std::string_view option_not_for;     // %1 is the option, %2 the command
  std::string_view see_help;           // %1 is what to type
  std::string_view unexpected_error;   // %1 is what is known of it
  std::string_view no_memory;
  std::string_view output_lost;

  // Which store is open. %1 is its file.
  std::string_view store_not_there;
  std::string_view store_empty;
  std::string_view current_folder_gone;
  std::string_view store_in_use;
  std::string_view store_just_made;
  std::string_view sample_chain;
  std::string_view sample_title;

  // The help of the command line.
  std::string_view help_purpose;
  std::string_view help_usage;
  std::string_view help_options;
  std::string_view help_of_options;  // in the line of use
  std::string_view help_arguments;
  std::string_view help_commands;
  std::string_view help_branch;
  std::string_view help_workstation;
  std::string_view help_shift;
  std::string_view help_language;
  std::string_view help_region;
  std::string_view help_base;
  std::string_view help_display;
  std::string_view help_store;
  std::string_view help_dialect;
  std::string_view help_picture;
  std::string_view help_record;
  std::string_view help_script;
  std::string_view help_create;
  std::string_view help_help;
  std::string_view help_store_of_script;
  std::string_view help_language_of_script;
  std::string_view help_display_of_script;
  std::string_view help_script_file;
  std::string_view help_first_run;
  std::string_view help_exit_codes;
  std::string_view help_exit_codes_of_script;

  // What the help calls values.
  std::string_view value_branch;
  std::string_view value_workstation;
  std::string_view value_shift;
  std::string_view value_region;
  std::string_view value_size;
  std::string_view value_file;
  std::string_view value_picture;
};

/// They live for ever.
const Words& WordsOf(Language language);

/// `pattern` with %1 to %9 replaced by the values; a mark without a value stays.
std::string Fill(std::string_view pattern, std::initializer_list<std::string_view> values);

// One for each language, each in a file of its own.
const Words& SpanishWords();
const Words& CatalanWords();
const Words& EnglishWords();

}  // namespace orvendal
