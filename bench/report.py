#!/usr/bin/env python3
"""Turns the hyperfine results of scripts/bench into the tables of bench/README.md.

    report.py RESULTS PACKAGES PROFILES FORMATS [candidate]

Times are hyperfine's medians in ms; peak RSS is the largest that GNU time
saw over a program's runs, in MiB. Goals are reported, never enforced.
"""
import json
import os
import sys

UPGRADE_GOAL = 1.10
START_GOAL = 1.30
RSS_GOAL_MIB = 48.0
MANY_SMALL_SLACK_MIB = 4.0

results, packages, profiles, formats = sys.argv[1], sys.argv[2], sys.argv[3].split(","), sys.argv[4].split(",")
with_candidate = len(sys.argv) > 5 and sys.argv[5] == "candidate"


def medians(name):
    with open(os.path.join(results, name + ".json")) as f:
        return {r["command"]: r for r in json.load(f)["results"]}


def ms(r):
    return r["median"] * 1000


def cpu_ms(r):
    return (r["user"] + r["system"]) * 1000


def rss(name):
    with open(os.path.join(results, "rss-" + name)) as f:
        return max(int(line) for line in f if line.strip().isdigit()) / 1024


def read(name):
    with open(os.path.join(results, name)) as f:
        return f.read().strip()


def verdict(met):
    return "met" if met else "**missed**"


start = medians("start")
qt = ms(start["qt-min"])
launcher_start = ms(start["launcher"])
start_ratio = launcher_start / qt

print(f"\nMachine: {os.cpu_count()} cores; {read('started')}; load average {read('load-start')} at the start, "
      f"{read('load-end')} at the end.")
print("hyperfine medians in ms; peak RSS in MiB (largest of the runs).\n")
print("| profile | format | package MiB | launcher | two-pass ref | bsdtar | ref + qt-min "
      "| launcher / (ref + qt-min) | launcher / bsdtar | ref / bsdtar | launcher RSS |")
print("|---|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|")
worst, worst_rss, upgrade_met, zip_met, rss_by = 0.0, 0.0, True, True, {}
cells = {}
for p in profiles:
    for fmt in formats:
        c = cells[p, fmt] = medians(f"upgrade-{p}-{fmt}")
        l, r, b = ms(c["launcher"]), ms(c["extract-ref"]), ms(c["bsdtar"])
        peak = rss_by[p, fmt] = rss(f"{p}-{fmt}-launcher")
        ratio = l / (r + qt)
        worst, worst_rss = max(worst, ratio), max(worst_rss, peak)
        upgrade_met = upgrade_met and ratio <= UPGRADE_GOAL
        if fmt == "zip" and p in ("typical", "many-small"):
            zip_met = zip_met and l <= b
        size = os.path.getsize(os.path.join(packages, p, f"{p}.{fmt}")) / 2**20
        print(f"| {p} | {fmt} | {size:.1f} | {l:.0f} | {r:.0f} | {b:.0f} | {r + qt:.0f} | {ratio:.2f} "
              f"| {l / b:.2f} | {r / b:.2f} | {peak:.1f} |")

print("\n| start, nothing to install | median ms | CPU ms | peak RSS MiB |\n|---|---:|---:|---:|")
print(f"| launcher (client started) | {launcher_start:.1f} | {cpu_ms(start['launcher']):.1f} | {rss('start-launcher'):.1f} |")
print(f"| qt-min | {qt:.1f} | {cpu_ms(start['qt-min']):.1f} | {rss('start-qt-min'):.1f} |")
print(f"| ratio | {start_ratio:.2f} | {cpu_ms(start['launcher']) / cpu_ms(start['qt-min']):.2f} | |")

if with_candidate:
    print("\n| profile | format | launcher | candidate | candidate / (ref + qt-min) | candidate / bsdtar | candidate RSS |")
    print("|---|---|---:|---:|---:|---:|---:|")
    for (p, fmt), c in cells.items():
        v, floor = ms(c["candidate"]), ms(c["extract-ref"]) + qt
        print(f"| {p} | {fmt} | {ms(c['launcher']):.0f} | {v:.0f} | {v / floor:.2f} | {v / ms(c['bsdtar']):.2f} "
              f"| {rss(f'{p}-{fmt}-candidate'):.1f} |")
    cs = ms(start["candidate"])
    print(f"| start | | {launcher_start:.1f} | {cs:.1f} | {cs / qt:.2f} (of qt-min) | | |")

# CPU time: less disturbed than wall time by other load on the machine.
print("\nCPU time (user + system), hyperfine's means in ms:\n")
print("| profile | format | launcher | two-pass ref | bsdtar | launcher / (ref + qt-min) | launcher / bsdtar |")
print("|---|---|---:|---:|---:|---:|---:|")
qt_cpu = cpu_ms(start["qt-min"])
for (p, fmt), c in cells.items():
    l, r, b = cpu_ms(c["launcher"]), cpu_ms(c["extract-ref"]), cpu_ms(c["bsdtar"])
    print(f"| {p} | {fmt} | {l:.0f} | {r:.0f} | {b:.0f} | {l / (r + qt_cpu):.2f} | {l / b:.2f} |")

print("\n| goal | figure | verdict |\n|---|---|---|")
print(f"| upgrade <= {UPGRADE_GOAL:.2f}x (two-pass ref + qt-min), every profile and format | worst {worst:.2f}x "
      f"| {verdict(upgrade_met)} |")
if any(fmt == "zip" and p in ("typical", "many-small") for p, fmt in cells):
    print(f"| zip: launcher no slower than bsdtar (typical, many-small) | see launcher / bsdtar | {verdict(zip_met)} |")
print(f"| start without upgrade <= {START_GOAL:.1f}x qt-min | {start_ratio:.2f}x | {verdict(start_ratio <= START_GOAL)} |")
print(f"| peak RSS during an upgrade <= {RSS_GOAL_MIB:.0f} MiB | worst {worst_rss:.1f} MiB "
      f"| {verdict(worst_rss <= RSS_GOAL_MIB)} |")
slack = [rss_by["many-small", f] - rss_by["typical", f] for f in formats
         if ("many-small", f) in rss_by and ("typical", f) in rss_by]
if slack:
    print(f"| many-small RSS <= typical + {MANY_SMALL_SLACK_MIB:.0f} MiB | worst {max(slack):+.1f} MiB "
          f"| {verdict(max(slack) <= MANY_SMALL_SLACK_MIB)} |")

print("\nlogger_bench:\n")
print(read("logger.txt"))
