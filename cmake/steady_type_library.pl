# Takes the moment of its making out of a type library, so that the same sources give the same bytes: widl notes it
# as a text and as a number of seconds.
#   perl steady_type_library.pl FILE
use strict;
use warnings;

my ($file) = @ARGV;
open my $in, '<:raw', $file or die "$file: $!\n";
local $/;
my $library = <$in>;
close $in;
# Behind the text, filled up to a word, comes the number with its type, VT_UI4.
$library =~ s/(Created by WIDL version [0-9.]+ at ).{24}(\nW{0,3}\x13\x00).{4}/$1Thu Jan  1 00:00:00 1970$2\0\0\0\0/s;
open my $out, '>:raw', $file or die "$file: $!\n";
print $out $library;
close $out or die "$file: $!\n";
