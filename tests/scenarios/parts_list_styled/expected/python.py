def tablestyle(drawing):
    """TABLESTYLE"""
    styles = drawing.doc.GetTableStyleManager()
    drawing.tablestyle1, _ = styles.CreateTableStyle("Parts")
    drawing.tablestyle1.Activate()
    drawing.tablestyle1.Rename("Parts")
    return drawing.tablestyle1


def tablestyle_2(drawing):
    """TABLESTYLE"""
    styles = drawing.doc.GetTableStyleManager()
    drawing.tablestyle2, _ = styles.CreateTableStyle("Notes")
    drawing.tablestyle2.Rename("Notes")
    return drawing.tablestyle2


def dimensionstyle(drawing):
    """DIMENSIONSTYLE"""
    styles = drawing.doc.GetDimensionStyleManager()
    drawing.dimensionstyle3, _ = styles.CreateDimensionStyle("Shop")
    return drawing.dimensionstyle3


def richlinestyle(drawing):
    """RICHLINESTYLE"""
    styles = drawing.doc.GetRichLineStyleManager()
    drawing.richlinestyle4, _ = styles.CreateRichLineStyle("Road")
    drawing.richlinestyle4.Activate()
    drawing.richlinestyle4.DeleteLine(0)
    drawing.richlinestyle4.AddLine(0.5, drawing.app.GetColorByIndex(2), "Continuous")
    drawing.richlinestyle4.DeleteLine(1)
    drawing.richlinestyle4.AddLine(0.0, drawing.app.GetColorByIndex(256), "DASHED2")
    drawing.richlinestyle4.DeleteLine(2)
    drawing.richlinestyle4.AddLine(-0.5, drawing.app.GetColorByIndex(0), "")
    return drawing.richlinestyle4


def last(results):
    """The last result of a call, which may be its only one."""
    return results[-1] if isinstance(results, tuple) else results


def linestyle(drawing):
    """LINESTYLE"""
    styles = drawing.doc.GetLineStyleManager()
    drawing.linestyle5 = last(styles.LoadLineStyle("FENCE1", ""))
    return drawing.linestyle5


def table(drawing):
    """TABLE"""
    drawing.table7 = drawing.sketch.InsertTable(10.0, -2.5, 4, 3, 9.0, 25.5, 1, 2, 3)
    drawing.table7.SetRowHeightAt(0, 12.0)
    return drawing.table7


def table_2(drawing):
    """TABLE"""
    drawing.table8 = drawing.sketch.InsertTable(10.0, -2.5, 2, 2, 0.0, 30.0, 3, 3, 3)
    drawing.table8.SetRowHeightAt(0, 8.0)
    drawing.table8.SetRowHeightAt(1, 8.0)
    return drawing.table8


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    tablestyle(drawing)
    tablestyle_2(drawing)
    dimensionstyle(drawing)
    richlinestyle(drawing)
    linestyle(drawing)
    table(drawing)
    table_2(drawing)
