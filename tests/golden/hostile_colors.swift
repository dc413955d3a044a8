import SwiftUI

// SVG
struct Group1: View {

  // Nested Groups and Shapes

  struct Reactangle1: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle2: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle3: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle4: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle5: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle6: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle7: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color.black)
    }
  }

  struct Reactangle8: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color(0x0000FF))
    }
  }

  struct Reactangle9: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color(red: 392156862.7412, green: 0, blue: 0))
    }
  }

  struct Reactangle10: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color(red: -1.1765, green: 0, blue: 0))
    }
  }

  struct Reactangle11: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color(red: 1.0039, green: 0, blue: 0))
    }
  }

  struct Reactangle12: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color(0xFFFFFE))
    }
  }

  struct Reactangle13: View {

    static let intrinsicSize = CGSize(width: 1, height: 1)

    var body: some View {
      Rectangle()
        .fill(Color(0x010203, opacity: 36170086419038340))
    }
  }

  var body: some View {
    ZStack(alignment: .topLeading) {
      Reactangle1()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle2()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle3()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle4()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle5()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle6()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle7()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle8()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle9()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle10()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle11()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle12()
        .frame(width: 1, height: 1, alignment: .topLeading)
      Reactangle13()
        .frame(width: 1, height: 1, alignment: .topLeading)
    }
  }
}

fileprivate extension Color {
  init(_ rgb: UInt32, opacity: Double = 1.0) {
    self.init(red     : Double((rgb >> 16) & 0xFF) / 255.0,
              green   : Double((rgb >>  8) & 0xFF) / 255.0,
              blue    : Double( rgb        & 0xFF) / 255.0,
              opacity : opacity)
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
