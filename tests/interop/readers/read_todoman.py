# Lists the to-dos of a vdir folder as todoman reads them, in the lines of
# read_icalendar.py. Anything todoman says besides its list fails the run.
import datetime
import json
import subprocess
import sys

folder = sys.argv[1]
with open(folder + "/todoman_config.py", "w") as f:
    f.write('path = "%s/vdir/*"\ndate_format = "%%Y-%%m-%%d"\ntime_format = "%%H:%%M"\n'
            'default_list = "tasks"\ncache_path = "%s/todoman-cache.sqlite3"\n' % (folder, folder))
run = subprocess.run(["/usr/bin/todoman", "--config", folder + "/todoman_config.py", "--porcelain", "list",
                      "--status", "ANY"], capture_output=True, text=True)
if run.returncode or run.stderr:
    print("todoman:", run.returncode, run.stderr)
for todo in json.loads(run.stdout or "[]"):
    due = todo["due"]
    print(json.dumps([todo["summary"],
                      datetime.datetime.fromtimestamp(due).strftime("%Y-%m-%dT%H:%M:%S") if due else "",
                      todo["completed"]], ensure_ascii=False))
