"""What the search for faults does with the programs of a build."""
from operation import Operation

# A cube as text STL is small, and each other format can be made of it.
CORNERS = [(10 * (i & 1), 10 * (i >> 1 & 1), 10 * (i >> 2 & 1)) for i in range(8)]
SIDES = ((0, 2, 3, 1), (4, 5, 7, 6), (0, 1, 5, 4), (2, 6, 7, 3), (0, 4, 6, 2), (1, 3, 7, 5))
OLD = b"an older output\n"


def cube():
    text = "solid cube\n"
    for a, b, c, d in SIDES:
        for corners in ((a, b, c), (a, c, d)):
            text += "facet normal 0 0 0\nouter loop\n"
            text += "".join("vertex {} {} {}\n".format(*CORNERS[i]) for i in corners) + "endloop\nendfacet\n"
    return (text + "endsolid cube\n").encode()


def operations_of(build):
    vmr, host, target = (build / name for name in ("bin/vmr", "libexec/vmr/vmr-host", "tests/vmr_fault_target"))
    complaint = r"(?m)^(Not verified|vmr: |.*(?:[Cc]ould not|[Uu]nable|[Cc]annot|[Ff]ailed|ended unexpectedly))"
    return (
        Operation("translation", (vmr, "in.stl", "-t", "BREP", "-o", "out.brep", "-log", "run.log"),
                  {"in.stl": cube()}, {"out.brep": OLD}, says_failure=False, host=host, complaint=complaint,
                  log="run.log"),
        Operation("merge", (target, "merge", "out.brep", "a.stl", "b.stl"), {"a.stl": cube(), "b.stl": cube()},
                  {"out.brep": OLD}, host=host, complaint=complaint),
        Operation("batch", (target, "batch", "a.stl", "a.brep", "b.stl", "b.brep"),
                  {"a.stl": cube(), "b.stl": cube()}, {"a.brep": OLD, "b.brep": OLD}, host=host,
                  complaint=complaint),
        Operation("options", (target, "options", "step.rsc", "stepReadHealing", "false"), {},
                  {"step.rsc": b"stepReadHealing = true\n"}, complaint=complaint),
        Operation("settings", (target, "settings", "startup.hrk", "language", "de"), {},
                  {"startup.hrk": b"language = en\nother = kept\n"}, complaint=complaint),
    )
