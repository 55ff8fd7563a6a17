#include "host/words.h"

namespace orvendal {

const Words& EnglishWords() {
  static const Words words = {
      .accept = "OK",
      .cancel = "Cancel",
      .close = "Close",
      .yes = "Yes",
      .no = "No",
      .cut = "Cut",
      .copy = "Copy",
      .paste = "Paste",
      .select_all = "Select All",
      .code = "Code",
      .description = "Description",
      .name = "Name",
      .branch = "Branch",
      .workstation = "Workstation",
      .shift = "Shift",
      .store = "Database",
      .provider = "Provider",
      .product_search = "Product Search",
      .employee_picker = "Choose a Stylist",
      .supervisor_picker = "Choose a Supervisor",
      .by_code = "By code",
      .by_description = "By description",
      .search_for = "Search:",
      .found = "Found: %1",
      .found_first = "The first %1 of %2 are shown",
      .found_other_way = "%1: none. %2: %3.",
      .workstation_panel = "Workstation",
      .reconnect = "Reconnect",
      .store_open = "The database is open.",
      .store_opened_anew = "The database has been opened again.",
      .store_given_up = "The database has been closed: it is not the one needed.",
      .session_change = "Change of Session",
      .folder_missing = "The folder %1 of the database does not exist.",
      .store_missing = "The database %1 does not exist.",
      .store_locked = "Another program has locked the database %1. Try again later.",
      .store_is_folder = "%1 is a folder and not a database.",
      .store_no_database = "The file %1 is not a database.",
      .store_damaged = "The database %1 is damaged.",
      .store_read_only = "The database %1 cannot be written to.",
      .store_refused = "There is no permission to open the database %1.",
      .store_foreign = "The database %1 does not belong to this program: it lacks the table %2.",
      .store_other = "The database %1 cannot be opened: %2",
      .store_newer =
          "The database %1 is of a newer version (%2) than this program knows (%3). Update the program; "
          "nothing has been changed.",
      .store_version_unknown =
          "The database %1 says that it is of version %2, which does not exist (this program knows %3). "
          "Nothing has been changed; choose another database.",
      .store_older =
          "The database %1 is of an older version (%2; this program needs %3): it lacks %4. Nothing has been "
          "changed. To bring it up to date, make a copy and run in it: %5",
      .store_lacks =
          "The database %1 lacks %2. Nothing has been changed. Make a copy and add it, or choose another "
          "database: %3",
      .store_no_table =
          "In the database %1, %2 is not a table. Nothing has been changed; choose another database.",
      .store_no_date =
          "In the database %1, the field %2 is not declared as a date (DATETIME). Nothing has been changed; "
          "correct the table or choose another database.",
      .store_no_text =
          "In the database %1, the field %2 is not declared as a text (VARCHAR), and a code such as 007 "
          "would "
          "not stay as it is. Nothing has been changed; correct the table or choose another database.",
      .store_no_number =
          "In the database %1, the field %2 is not declared as a number with decimals (NUMERIC). Nothing has "
          "been changed; correct the table or choose another database.",
      .store_narrow_field =
          "In the database %1, the field %2 takes fewer characters (%3) than are saved in it (%4). Nothing "
          "has "
          "been changed; widen it or choose another database.",
      .store_generated_field =
          "In the database %1, the field %2 is calculated (GENERATED), which cannot be in a table that is "
          "written. Nothing has been changed; correct the table or choose another database.",
      .store_own_rule =
          "In the database %1, the table %2 has a rule of its own that can stop a save when the day has been "
          "deleted already: %3. Nothing has been changed; remove it or choose another database.",
      .store_demanding_field =
          "In the database %1, the field %2 demands a value that this program does not know. Nothing has "
          "been changed; give it a default value or let it stay empty.",
      .store_moved = "The database %1 is no longer in its place. Put it back, or reconnect with F1.",
      .store_full = "The disk of the database %1 is full. Make room and do it again.",
      .store_disk_error =
          "The disk does not let the database %1 be read or written. Check the disk or the network and do it "
          "again.",
      .store_too_slow =
          "The database took too long to answer, and what was being done has been stopped. Do it again "
          "later.",
      .store_not_allowed = "The database does not allow that.",
      .text_not_understood =
          "The text is not understood near “%2”. Write it without quotes and signs and do it again.",
      .date_not_understood = "A date is not understood. Correct it and do it again.",
      .table_missing = "The database lacks the table %2. Look with F1 which database is open.",
      .field_missing = "The database lacks the field %2. Look with F1 which database is open.",
      .field_missing_somewhere = "The database lacks a field. Look with F1 which database is open.",
      .row_twice = "The database has such a row already and takes no second one.",
      .value_refused =
          "The database does not take one of the values: it is too long, or it is missing where there has to "
          "be one. Correct it and save again.",
      .value_of_wrong_kind =
          "A value is not of the kind that its field takes: a number or a date that is none. Correct it and "
          "do it again.",
      .row_missing = "The database does not have the row that is looked for.",
      .connection_closed = "There is no connection to the database. Reconnect with F1.",
      .rows_closed =
          "The rows of the database are closed already. Do it again; if that is not enough, reconnect with "
          "F1.",
      .rows_open = "The rows of the database are open already. Do it again.",
      .rows_fixed = "Those rows of the database can only be read.",
      .rows_without_positions = "Those rows of the database have no number.",
      .not_now = "The database cannot do that at this moment. Do it again.",
      .wrong_argument = "A value does not serve for what is asked.",
      .number_too_large = "A number is too large. Correct it and do it again.",
      .field_too_large =
          "The field %2 of the database holds a number beyond all bounds. It has to be corrected in the "
          "database; "
          "until then those rows cannot be loaded.",
      .grid_too_long =
          "The count has more than the %2 rows that can be saved. Nothing was deleted or saved. Note the "
          "lines that are new, press Cancel to load the day again, and enter fewer of them.",
      .lines_not_whole =
          "The lines of the day could not all be loaded. Nothing was deleted or saved. Press Cancel to load "
          "the day "
          "again.",
      .value_empty = "A value is missing that there has to be. Complete it in the database and do it again.",
      .object_missing =
          "A part of the program that should be ready is missing. Close the screen and open it again.",
      .program_error = "Internal error of the program. Close the screen and open it again.",
      .error = "Error %1: %2",
      .part_missing = "%1 cannot be loaded. It has to be in the same folder as the program.",
      .no_display = "There is no display. With --captura FILE.png a picture is saved without one.",
      .picture_not_written = "The picture %1 cannot be written.",
      .record_not_made =
          "The file %1 for the recording cannot be made: %2. Choose a new name in a folder that can be "
          "written to.",
      .record_cut = "The recording %1 was cut short: %2.",
      .work_not_kept =
          "What is typed cannot be noted down in %1: %2. Work can go on, but could not be brought back.",
      .unsaved_work_found =
          "The program ended before lines of today's count of branch %1 were saved. They were last typed at "
          "%2.",
      .day_changed_meanwhile =
          "Careful: that count has changed in the database since then. If you save the lines brought back, "
          "they replace those in it.",
      .bring_work_back =
          "Bring the lines back? They return to the screen, unsaved. If you answer No, they are put aside in "
          "%1.",
      .work_not_all_back =
          "Not everything could be brought back. Check the lines. All that was done is in %1.",
      .unknown_option = "There is no option %1.",
      .unexpected_word = "The word %1 is one too many.",
      .value_missing = "The option %1 lacks its value.",
      .argument_missing = "The command %1 lacks its %2.",
      .bad_value = "The option %1 does not take \"%2\"; it takes %3.",
      .value_not_taken = "The option %1 takes no value.",
      .option_not_for = "The option %1 does not belong to the command %2.",
      .see_help = "%1 tells more.",
      .unexpected_error = "Unexpected error: %1",
      .no_memory = "There is not enough memory.",
      .output_lost = "The program's output cannot be written.",
      .store_not_there =
          "The database %1 does not exist. Check the name; --crear makes a new one, with a sample chain.",
      .store_empty = "The file %1 is empty. Check the name; --crear fills it with a sample chain.",
      .current_folder_gone = "The current folder is gone: type the database %1 with its full path.",
      .store_in_use = "Database: %1",
      .store_just_made = "New database: %1",
      .sample_chain = "Sample chain: the data are made up.",
      .sample_title = "sample chain",
      .help_purpose = "Opens the screen for the opening stock of a branch.",
      .help_usage = "Usage:",
      .help_options = "Options",
      .help_of_options = "[options]",
      .help_arguments = "Arguments",
      .help_commands = "Commands",
      .help_branch = "branch; its first two characters count (01)",
      .help_workstation = "workstation (1)",
      .help_shift = "shift (1)",
      .help_language = "language of the texts: es, ca or en (the system's, or es)",
      .help_region = "how numbers and dates are written: es-ES, ca-ES or en-US (es-ES)",
      .help_base = "reference size in pixels, or in twips as 15360x11520tw (1024x768)",
      .help_display = "opens a window of that size, in pixels, as if it were the whole display",
      .help_store = "SQLite file with the database, which has to exist (%1)",
      .help_dialect = "provider to act as: sqlserver or jet (sqlserver)",
      .help_picture = "no window: saves a picture of the screen and writes the day's lines",
      .help_record = "records the whole session, as a script, in a new file",
      .help_script = "Runs a script on the screen, without a window, and writes what it shows.",
      .help_create = "makes the database of --db if it does not exist, with the sample chain",
      .help_help = "shows this help",
      .help_store_of_script = "SQLite file that the script reads and changes (a sample chain in memory)",
      .help_language_of_script = "language of the screen's texts: es, ca or en (es)",
      .help_display_of_script = "size of the script's display, in pixels (1024x768)",
      .help_script_file = "script to run; docs/guion.md explains how to write one",
      .help_first_run =
          "Without --db the program has a database of its own, made the first time with a sample chain of "
          "made-up data.",
      .help_exit_codes =
          "Exit code: 0, all well; 1, it could not be done (standard error says why); 2, wrong options.",
      .help_exit_codes_of_script =
          "Exit code: 0, the script reached its end; 1, an \"espera\" was not met; 2, the script cannot go "
          "on, or wrong options.",
      .value_branch = "BRANCH",
      .value_workstation = "STATION",
      .value_shift = "SHIFT",
      .value_region = "REGION",
      .value_size = "WIDTHxHEIGHT",
      .value_file = "FILE",
      .value_picture = "FILE.png",
  };
  return words;
}

}  // namespace orvendal
