#include "help.h"

namespace client {

const char *const helpText =
    R"(Usage: camera-report --address ADDRESS... [OPTION...]
       camera-report --interface NAME [--all] [OPTION...]
Shows what ONVIF cameras tell of themselves, or searches for cameras.

Which cameras. ADDRESS is HOST, HOST:PORT or a whole URL of http or https.
  --address ADDRESS      asks this one; can be repeated
  --addresses FILE       asks those in FILE, one on each line; - reads them in
  --interface NAME       searches through this network interface
  --probe-address IP:PORT  sends the search there, not to 239.255.255.250:3702
  --all                  asks each camera that a search finds
How they are asked.
  --user NAME            as this user; the password, which is asked for at the
                         terminal, is never sent: a digest proves it
  --password-file FILE   takes the password from the first line of FILE
  --insecure             accepts any certificate, and shows its fingerprint
  --clock-limit DAYS     proofs go by a camera's clock up to so far off: 7
  --timeout SECONDS      waits so long for each reply, and for a search: 5
  --jobs NUMBER          asks so many at once, not counting those that keep it
                         waiting: 16
What comes out. Reports go to standard output, failures to standard error.
  --json                 a line of JSON for each (report.schema.json)
  --table                a line of a table for each
  --save FOLDER          also keeps the replies, for simulated-device FOLDER;
                         of several cameras in a folder each
  --quiet                says nothing of what happens, only what failed
Setting an interface of one camera: prints the request.
  --set-dhcp INTERFACE   --set-address INTERFACE=ADDRESS/PREFIX
  --apply                sends it
  -h, --help             -v, --version

Only the host that was asked is contacted: where a camera names another one for
a service, it is asked itself. Exit codes: 0 all was answered; 1 a request
failed or brought a fault; 2 the command line is wrong or something is lacking;
3 no camera was found; 130 stopped by Ctrl-C.
)";

} // namespace client
