import SwiftUI

// SVG
struct Group1: View {

  // Modifiers and Statics

  struct F: ViewModifier {

    func body(content: Content) -> some View {
      content // SourceGraphic
        .offset(x: 0, y: 0) // feOffset
    }
  }

  // Nested Groups and Shapes

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color.black)
        .offset(x: 0, y: 0) // feOffset
    }
  }

  var body: some View {
    Reactangle1()
      .frame(width: 1, height: 1, alignment: .topLeading)
  }
}

struct Group1_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Group1()
        .frame(width: 128, height: 128)
        .background(Color.clear.border(Color.green))
        .padding()
    }
  }
}
