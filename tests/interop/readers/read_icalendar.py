# Lists the to-dos of a calendar file as Python's icalendar reads them, one
# JSON line each: summary, due (local time), completed. Any warning or
# property the reader could not take fails the run.
import json
import sys
import warnings

warnings.simplefilter("error")
import icalendar  # noqa: E402

with open(sys.argv[1], "rb") as f:
    cal = icalendar.Calendar.from_ical(f.read())
for component in cal.walk():
    if component.errors:
        print("error", component.name, component.errors)
for todo in cal.walk("VTODO"):
    due = todo.get("DUE")
    print(json.dumps([str(todo.get("SUMMARY", "")),
                      due.dt.astimezone().strftime("%Y-%m-%dT%H:%M:%S") if due else "",
                      str(todo.get("STATUS")) == "COMPLETED"], ensure_ascii=False))
